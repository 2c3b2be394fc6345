#include "HelpWindowController.h"

#include <QGuiApplication>
#include <QScreen>

namespace {
QPointer<HelpWindowController> &sharedInstance()
{
    static QPointer<HelpWindowController> instance;
    return instance;
}
} // namespace

HelpWindowController::HelpWindowController(WindowFactory factory, QObject *parent)
    : QObject(parent), factory_(std::move(factory))
{
    sharedInstance() = this;
}

HelpWindowController *HelpWindowController::shared() { return sharedInstance().data(); }

HelpWindowController::~HelpWindowController()
{
    if (window_)
        delete window_.data();
}

void HelpWindowController::show(std::optional<HelpArticle> article)
{
    if (article)
        selection_.setSelected(*article);
    if (window_) {
        window_->raise();
        window_->requestActivate();
        return;
    }
    QWindow *w = factory_ ? factory_(&selection_) : nullptr;
    if (!w)
        return;
    window_ = w;
    w->setTitle(tr(windowTitle));
    w->resize(contentSize);
    if (QScreen *screen = w->screen() ? w->screen() : QGuiApplication::primaryScreen()) {
        const QRect area = screen->availableGeometry();
        w->setPosition(area.center() - QPoint(contentSize.width() / 2, contentSize.height() / 2));
    }
    // Closing hides the window; that is when it is let go.
    connect(w, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            windowClosing();
    });
    w->show();
    w->raise();
    w->requestActivate();
}

void HelpWindowController::show(int articleIndex)
{
    if (articleIndex < 0 || articleIndex >= int(HelpArticle::allCases().size()))
        show(std::nullopt);
    else
        show(std::optional<HelpArticle>(HelpArticle::allCases()[size_t(articleIndex)]));
}

void HelpWindowController::windowClosing()
{
    if (!window_)
        return;
    QWindow *w = window_.data();
    window_.clear();
    w->deleteLater();
}
