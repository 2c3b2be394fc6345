#pragma once

#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QVariantMap>

class AppState;

// What the QML asks of C++: texts, icons and the rules of the screens. The
// QML only shows what comes back.
class UiBridge : public QObject {
    Q_OBJECT
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    Q_PROPERTY(QVariantList helpArticles READ helpArticles CONSTANT)
    Q_PROPERTY(QVariantList sidebarSections READ sidebarSections CONSTANT)
    Q_PROPERTY(QVariantList guideSteps READ guideSteps CONSTANT)
    Q_PROPERTY(QVariantList guideNotes READ guideNotes CONSTANT)
    // Named values of the enumerations QML compares with (QML can't reach
    // lower-case enum keys): sections.drive …, columns.all / detailOnly.
    Q_PROPERTY(QVariantMap sections READ sections CONSTANT)
    Q_PROPERTY(QVariantMap columns READ columns CONSTANT)
    // The application palette by role name (window, windowText, base, …),
    // set on the windows so every control follows the chosen scheme.
    Q_PROPERTY(QVariantMap colors READ colors CONSTANT)
    Q_PROPERTY(double storedListWidth READ storedListWidth WRITE setStoredListWidth NOTIFY storedListWidthChanged)
    // Video decoding on the graphics hardware where it works; remembered.
    Q_PROPERTY(bool hardwareDecoding READ hardwareDecoding WRITE setHardwareDecoding NOTIFY hardwareDecodingChanged)
public:
    explicit UiBridge(AppState *state, QObject *parent = nullptr);

    QVariantMap texts() const;
    QVariantList helpArticles() const;
    QVariantList sidebarSections() const;
    QVariantList guideSteps() const;
    QVariantList guideNotes() const;
    QVariantMap sections() const;
    QVariantMap columns() const;
    QVariantMap colors() const;
    double storedListWidth() const;
    void setStoredListWidth(double w);
    bool hardwareDecoding() const;
    void setHardwareDecoding(bool on);
    // Applies the remembered choice; players opened afterwards follow it.
    static void applyStoredHardwareDecoding();

    Q_INVOKABLE QString icon(const QString &symbolName) const;
    // Help › Copy Diagnostic Information: puts it on the clipboard; answers it.
    Q_INVOKABLE QString copyDiagnosticInformation() const;
    Q_INVOKABLE double listColumnWidth(double total, double stored) const;
    Q_INVOKABLE double dragWidth(double atStart, double translation) const;
    Q_INVOKABLE QString scanCountsText(int eventsFound, int clipsFound) const;
    Q_INVOKABLE QString rootForChosenFolder(const QString &chosen) const;
    Q_INVOKABLE QString candidateHeading(const QVariantMap &candidate) const;
    Q_INVOKABLE QString candidateCapacity(const QVariantMap &candidate) const;
    // The failure now in the state, as a screen; empty when there is none.
    Q_INVOKABLE QVariantMap failureScreen() const;
    // The health screen's content; `present` false when there is no report.
    Q_INVOKABLE QVariantMap healthContent() const;

Q_SIGNALS:
    void storedListWidthChanged();
    void hardwareDecodingChanged();

private:
    QPointer<AppState> state_;
};
