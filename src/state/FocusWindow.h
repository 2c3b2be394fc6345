#pragma once

#include <QObject>
#include <QPointer>

class QWindow;

// The main window as focus mode needs it: whether it is full screen, a
// toggle, and a notice when it starts to leave full screen by any means.
// Tests stand in their own; the application wraps its QWindow.
class FocusWindow : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    ~FocusWindow() override = default;

    virtual bool isFullScreen() const = 0;
    virtual void toggleFullScreen() = 0;

    // A QWindow-backed window, owned by `parent`.
    static FocusWindow *forWindow(QWindow *window, QObject *parent = nullptr);

Q_SIGNALS:
    void willExitFullScreen();
};
