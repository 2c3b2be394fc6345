#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>

// Hands a finished file on to the desktop: the file manager with the file
// selected, or a new mail with the file attached.
class FileHandOff : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool canEmail READ canEmail CONSTANT)
    Q_PROPERTY(QString shareTooltip READ shareTooltip CONSTANT)

public:
    explicit FileHandOff(QObject *parent = nullptr) : QObject(parent) {}

    static bool canEmail() { return !emailProgram().isEmpty(); }
    static QString emailProgram();
    static QString shareTooltip();
    // The command lines tried, in order, to show the file in its folder.
    static QList<QStringList> showInFolderCommands(const QString &path);
    static QStringList emailCommand(const QString &path);

    // How long a file manager may take to answer before the next way is tried.
    static constexpr std::chrono::milliseconds answerLimit{3000};

    // Returns at once; false only when there is no such file.
    Q_INVOKABLE static bool showInFolder(const QString &path);
    Q_INVOKABLE static bool email(const QString &path);
};
