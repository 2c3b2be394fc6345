#include "state/FocusWindow.h"

#include <QWindow>

namespace {

class QtFocusWindow final : public FocusWindow {
public:
    QtFocusWindow(QWindow *window, QObject *parent) : FocusWindow(parent), window_(window)
    {
        connect(window, &QWindow::windowStateChanged, this, [this](Qt::WindowState state) {
            if (wasFullScreen_ && state != Qt::WindowFullScreen)
                Q_EMIT willExitFullScreen();
            wasFullScreen_ = state == Qt::WindowFullScreen;
        });
        wasFullScreen_ = window->windowState() == Qt::WindowFullScreen;
    }

    bool isFullScreen() const override { return window_ && window_->windowState() == Qt::WindowFullScreen; }

    void toggleFullScreen() override
    {
        if (!window_)
            return;
        if (isFullScreen())
            window_->showNormal();
        else
            window_->showFullScreen();
    }

private:
    QPointer<QWindow> window_;
    bool wasFullScreen_ = false;
};

} // namespace

FocusWindow *FocusWindow::forWindow(QWindow *window, QObject *parent)
{
    return new QtFocusWindow(window, parent);
}
