#pragma once

#include "KeelholdApp.h"
#include "ScreenModels.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

#include <memory>

// The real application in the test process (state, engine, view models and
// the QML of the app itself), with what a test needs to click and read what
// the user would. Make it in a process whose home is already isolated.
class AppWindowHarness {
public:
    KeelholdApp keelhold;
    AppState &state = keelhold.appState();
    UiBridge &ui = keelhold.ui();
    ScreenModels &screens = keelhold.screens();

    bool load()
    {
        if (!keelhold.load())
            return false;
        state.setShowOnboarding(false);
        return QTest::qWaitForWindowExposed(window());
    }

    QQuickWindow *window() const { return keelhold.mainWindow(); }

    // Then through the item tree: list delegates and open popups are reachable only through it.
    template <typename T = QQuickItem> T *find(const QString &name) const
    {
        if (!window())
            return nullptr;
        if (T *hit = window()->findChild<T *>(name))
            return hit;
        return qobject_cast<T *>(findItem(window()->contentItem(), name));
    }

    static QQuickItem *findItem(QQuickItem *root, const QString &name, bool visibleOnly = false)
    {
        if (!root)
            return nullptr;
        for (QQuickItem *child : root->childItems()) {
            if (child->objectName() == name && (!visibleOnly || child->isVisible()))
                return child;
            if (QQuickItem *hit = findItem(child, name, visibleOnly))
                return hit;
        }
        return nullptr;
    }

    // From the content item this takes in open popups (the overlay is its child).
    static QList<QQuickItem *> itemsUnder(QQuickItem *root)
    {
        QList<QQuickItem *> out;
        if (root) {
            out << root;
            for (QQuickItem *child : root->childItems())
                out << itemsUnder(child);
        }
        return out;
    }

    QList<QQuickItem *> shownItems(const QString &name, bool prefix = false) const
    {
        QList<QQuickItem *> out;
        for (QQuickItem *item : itemsUnder(window() ? window()->contentItem() : nullptr))
            if ((prefix ? item->objectName().startsWith(name) : item->objectName() == name) && item->isVisible()
                && item->width() > 0)
                out << item;
        return out;
    }
    QQuickItem *shown(const QString &name) const
    {
        const QList<QQuickItem *> items = shownItems(name);
        return items.isEmpty() ? nullptr : items.first();
    }

    // An entry of a menu or of its submenus, by object name.
    static QObject *menuEntry(QObject *menu, const QString &name)
    {
        if (!menu)
            return nullptr;
        const int count = menu->property("count").toInt();
        for (int i = 0; i < count; ++i) {
            QQuickItem *item = nullptr;
            QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem *, item), Q_ARG(int, i));
            if (!item)
                continue;
            if (item->objectName() == name)
                return item;
            if (QObject *hit = menuEntry(item->property("subMenu").value<QObject *>(), name))
                return hit;
        }
        return nullptr;
    }

    // The centre of an item in window coordinates.
    static QPoint centreOf(QQuickItem *item)
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }

    // Nothing is drawn while the scene stands still, hence the update.
    static bool waitForFrame(QQuickWindow *window, int timeout = 20000)
    {
        if (!window)
            return false;
        // Swaps are signalled on the render thread; counted on this one.
        auto swapped = std::make_shared<int>(0);
        const QMetaObject::Connection counting = QObject::connect(
            window, &QQuickWindow::frameSwapped, window, [swapped] { ++*swapped; }, Qt::QueuedConnection);
        window->update();
        const bool drawn = QTest::qWaitFor([&] { return *swapped > 0; }, timeout);
        QObject::disconnect(counting);
        return drawn;
    }
    bool waitForFrame() const { return waitForFrame(window()); }

    // Layouts place items at the next frame, and transitions move them frame by frame.
    static bool settle(QQuickWindow *window, QQuickItem *item)
    {
        QPoint last = centreOf(item);
        for (int frame = 0; frame < 100; ++frame) {
            if (!waitForFrame(window))
                return false;
            const QPoint now = centreOf(item);
            if (now == last)
                return true;
            last = now;
        }
        return false;
    }
    bool settle(QQuickItem *item) const { return settle(window(), item); }

    // Clicks the item's centre once it stands still.
    void click(QQuickItem *item, Qt::MouseButton button = Qt::LeftButton) const
    {
        QVERIFY(settle(item));
        QTest::mouseClick(window(), button, Qt::NoModifier, centreOf(item));
    }

    // With KEELHOLD_SCREENSHOT_DIR set: <dir>/<name>.png, or <name>-<language>.png in another language.
    void shot(const QString &name) const
    {
        if (qEnvironmentVariableIsEmpty("KEELHOLD_SCREENSHOT_DIR") || !window())
            return;
        waitForFrame();
        const QString language = qEnvironmentVariable("KEELHOLD_TEST_LANGUAGE");
        shotNow(language.isEmpty() || language == QLatin1String("en") ? name : name + QLatin1Char('-') + language);
    }

    // The same, in no language, without letting the event loop run first.
    void shotNow(const QString &name) const
    {
        const QString dir = qEnvironmentVariable("KEELHOLD_SCREENSHOT_DIR");
        if (!dir.isEmpty() && window())
            window()->grabWindow().save(dir + QLatin1Char('/') + name + QStringLiteral(".png"));
    }
};
