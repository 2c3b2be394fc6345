#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class AppState;
class LicenceGate;

// The drive picker's file panel: the licence gate first, then the folder
// dialog, then the root rule and the saved bookmark.
//
// Test hook: with KEELHOLD_FOLDER_ANSWER set, the panel is not shown and the
// variable is the folder chosen in it ("-" for a cancelled panel).
class DrivePicker : public QObject {
    Q_OBJECT
    // While the panel is up, so the wizard can say what to choose.
    Q_PROPERTY(bool isPanelOpen READ isPanelOpen NOTIFY isPanelOpenChanged)
public:
    static inline const char *answerEnv = "KEELHOLD_FOLDER_ANSWER";

    // The gate must outlive the picker.
    DrivePicker(AppState *state, const LicenceGate *gate, QObject *parent = nullptr);
    void setLicenceGate(const LicenceGate *gate) { gate_ = gate; }

    bool isPanelOpen() const { return panelOpen_; }

    // Opens the panel at `startingAt` unless the gate is locked.
    Q_INVOKABLE void presentOpenPanel(const QString &startingAt);
    // The panel's end: `chosen` is a path or file:// URL; empty or not
    // accepted does nothing. Saves the bookmark of the root, then `picked`.
    Q_INVOKABLE void panelFinished(bool accepted, const QString &chosen);

Q_SIGNALS:
    void licenceWindowRequested();
    void openPanelRequested(const QString &startFolder);
    void picked(const QString &root);
    void isPanelOpenChanged();

private:
    void setPanelOpen(bool open);

    QPointer<AppState> state_;
    const LicenceGate *gate_;
    bool panelOpen_ = false;
};
