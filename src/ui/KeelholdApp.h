#pragma once

#include "AppStateFace.h"
#include "state/DesktopNotices.h"
#include "DrivePicker.h"
#include "HelpWindowController.h"
#include "LicenceGate.h"
#include "ScreenModels.h"
#include "UiBridge.h"
#include "UnlockController.h"
#include "base/DesktopNotifier.h"
#include "engine/LiveEngine.h"
#include "state/AppState.h"

#include <QObject>
#include <QQmlApplicationEngine>

class QQuickWindow;

// The application: one AppState on a LiveEngine for the life of the
// process, the QML root view over it, the help window and the drive
// picker's gate. main() makes one; the UI tests make their own.
class KeelholdApp : public QObject {
    Q_OBJECT
public:
    static inline const QString rootViewUrl = QStringLiteral("qrc:/Keelhold/qml/Main.qml");
    static inline const QString helpWindowUrl = QStringLiteral("qrc:/Keelhold/qml/HelpWindow.qml");

    // Needs a QApplication (the file dialogs are widgets). Sets the palette
    // and the QML context.
    explicit KeelholdApp(QObject *parent = nullptr);
    ~KeelholdApp() override;

    // Loads the root view; false when the QML failed to load.
    bool load();

    AppState &appState() { return state_; }
    UiBridge &ui() { return ui_; }
    DrivePicker &drivePicker() { return picker_; }
    HelpWindowController &help() { return help_; }
    ScreenModels &screens() { return screens_; }
    UnlockController &unlock() { return unlock_; }
    DesktopNotices &notices() { return notices_; }
    QQmlApplicationEngine &qmlEngine() { return qml_; }
    // The main window once loaded.
    QQuickWindow *mainWindow() const;

private:
    LiveEngine engine_;
    AppState state_;
    AppStateFace face_;
    UiBridge ui_;
    LicenceGate licence_;
    DrivePicker picker_;
    HelpWindowController help_;
    ScreenModels screens_;
    UnlockController unlock_;
    DesktopNotifier notifier_;
    DesktopNotices notices_;
    // Last, so it goes first: the QML reads everything above.
    QQmlApplicationEngine qml_;
};
