#pragma once

#include "HelpArticle.h"
#include "HelpArticleSelection.h"

#include <QObject>
#include <QPointer>
#include <QWindow>
#include <functional>
#include <optional>

// At most one help window: made on first use, raised when asked again,
// released on close. The selection outlives it for the whole run.
class HelpWindowController : public QObject {
    Q_OBJECT
    Q_PROPERTY(QObject *selection READ selectionObject CONSTANT)
public:
    // Translated when the window is made: a static string predates the translators.
    static inline const char *const windowTitle = QT_TR_NOOP("Keelhold Help");
    static constexpr QSize contentSize{700, 480};

    // Makes the window's content; the controller owns what it returns.
    using WindowFactory = std::function<QWindow *(HelpArticleSelection *)>;

    explicit HelpWindowController(WindowFactory factory, QObject *parent = nullptr);
    ~HelpWindowController() override;

    // The application's one controller (the latest made that still lives),
    // for screens that point at an article; null before the app stands.
    static HelpWindowController *shared();

    // With an article, select it; with none keep the selection. Raise the
    // open window, or open a new one.
    void show(std::optional<HelpArticle> article);
    // For QML: an article's index, or -1 for none.
    Q_INVOKABLE void show(int articleIndex);

    HelpArticleSelection &selection() { return selection_; }
    QObject *selectionObject() { return &selection_; }
    QWindow *window() const { return window_; }

private:
    void windowClosing();

    WindowFactory factory_;
    HelpArticleSelection selection_;
    QPointer<QWindow> window_;
};
