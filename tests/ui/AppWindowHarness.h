#pragma once

#include "ScreenModels.h"
#include "UiBridge.h"
#include "engine/LiveEngine.h"
#include "state/AppState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

// The application's window in the test process: the real state over the
// real engine, the real QML files (copied from the source tree into a
// module folder of their own), so a test can click and read what the user
// would. Call in a process whose home is already isolated.
class AppWindowHarness {
public:
    LiveEngine engine;
    AppState state{engine};
    UiBridge ui{&state};
    ScreenModels screens{&state};
    QTemporaryDir moduleRoot;
    QQmlApplicationEngine qml; // last: destroyed before what it shows

    bool load()
    {
        QQuickStyle::setStyle(QStringLiteral("Fusion"));
        const QDir source(QFileInfo(QStringLiteral(__FILE__)).absolutePath() + QStringLiteral("/../../src/ui/qml"));
        const QString module = moduleRoot.filePath(QStringLiteral("Keelhold"));
        QDir().mkpath(module);
        QByteArray qmldir = "module Keelhold\n";
        for (const QString &name : source.entryList({QStringLiteral("*.qml")}, QDir::Files)) {
            QFile::copy(source.filePath(name), module + QLatin1Char('/') + name);
            qmldir += QFileInfo(name).baseName().toUtf8() + " 1.0 " + name.toUtf8() + "\n";
        }
        QFile f(module + QStringLiteral("/qmldir"));
        if (!f.open(QIODevice::WriteOnly))
            return false;
        f.write(qmldir);
        f.close();
        qml.addImportPath(moduleRoot.path());
        qml.rootContext()->setContextProperty(QStringLiteral("appState"), &state);
        qml.rootContext()->setContextProperty(QStringLiteral("ui"), &ui);
        screens.install(qml);
        qml.load(QUrl::fromLocalFile(module + QStringLiteral("/Main.qml")));
        if (!window())
            return false;
        state.setShowOnboarding(false);
        return QTest::qWaitForWindowExposed(window());
    }

    QQuickWindow *window() const
    {
        return qml.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(qml.rootObjects().first());
    }

    // By object name, through the object tree and then the item tree (list
    // delegates and open popups are reachable only through the latter).
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

    // Waits for the item to stop moving (layouts settle on the next frame), then clicks its centre.
    void click(QQuickItem *item, Qt::MouseButton button = Qt::LeftButton) const
    {
        QPoint last = centreOf(item);
        for (int i = 0; i < 20; ++i) {
            QTest::qWait(20);
            const QPoint now = centreOf(item);
            if (now == last)
                break;
            last = now;
        }
        QTest::mouseClick(window(), button, Qt::NoModifier, last);
    }

    // The same without letting the event loop run first.
    void shotNow(const QString &name) const
    {
        const QString dir = qEnvironmentVariable("KEELHOLD_SCREENSHOT_DIR");
        if (!dir.isEmpty() && window())
            window()->grabWindow().save(dir + QLatin1Char('/') + name + QStringLiteral(".png"));
    }

    // With KEELHOLD_SCREENSHOT_DIR set, the window as it stands goes to <dir>/<name>.png.
    void shot(const QString &name) const
    {
        const QString dir = qEnvironmentVariable("KEELHOLD_SCREENSHOT_DIR");
        if (dir.isEmpty() || !window())
            return;
        QTest::qWait(200);
        window()->grabWindow().save(dir + QLatin1Char('/') + name + QStringLiteral(".png"));
    }
};
