#pragma once

#include <QObject>
#include <QVariantList>

// The hint bar under the player: its items and whether it is shown, kept in
// the user's settings under "KHShowKeyboardHints".
class KeyboardHints : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool showHints READ showHints WRITE setShowHints NOTIFY showHintsChanged)
    Q_PROPERTY(QVariantList items READ items CONSTANT)
    Q_PROPERTY(QString closeTooltip READ closeTooltip CONSTANT)

public:
    static inline const QString settingKey = QStringLiteral("KHShowKeyboardHints");

    explicit KeyboardHints(QObject *parent = nullptr);

    bool showHints() const;
    void setShowHints(bool value);
    // Each item is {key, label}.
    static QVariantList items();
    static QString closeTooltip();

Q_SIGNALS:
    void showHintsChanged();
};
