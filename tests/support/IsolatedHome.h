#pragma once

#include "base/Translations.h"
#include <QString>
#ifdef QT_WIDGETS_LIB
#include <QApplication>
#define KEELHOLD_APP_CLASS QApplication
#else
#include <QGuiApplication>
#define KEELHOLD_APP_CLASS QGuiApplication
#endif

// Points HOME and the XDG data, config and cache folders at a fresh
// temporary folder, so that settings and per-user files a test writes are
// its own. Call before QCoreApplication is created (Qt reads them early).
namespace IsolatedHome {

// Returns the new home folder; it is removed when the process exits.
QString setUp();

} // namespace IsolatedHome

// A QtTest main that isolates the home folder first.
#define KEELHOLD_ISOLATED_TEST_MAIN(TestObject)                                                                        \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        IsolatedHome::setUp();                                                                                         \
        QCoreApplication app(argc, argv);                                                                              \
        Translations::install(QLocale(QLocale::English));                                                             \
        TestObject tc;                                                                                                 \
        QTEST_SET_MAIN_SOURCE_PATH                                                                                     \
        return QTest::qExec(&tc, argc, argv);                                                                          \
    }

// The same for the window's tests (English, or KEELHOLD_TEST_LANGUAGE's language: layouts are checked in German),
// named as the app so settings land where its would, with widgets where linked (file dialogs are widgets). Offscreen
// without a display, to say what it skips; no platform theme, as the tests drive Qt's own dialogs.
#define KEELHOLD_APP_TEST_MAIN(TestObject)                                                                             \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        IsolatedHome::setUp();                                                                                         \
        if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))                  \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                                                   \
        qunsetenv("XDG_CURRENT_DESKTOP");                                                                              \
        qunsetenv("DESKTOP_SESSION");                                                                                  \
        qunsetenv("QT_QPA_PLATFORMTHEME");                                                                             \
        KEELHOLD_APP_CLASS app(argc, argv);                                                                            \
        QGuiApplication::setOrganizationName(QStringLiteral("Keelhold"));                                              \
        QGuiApplication::setApplicationName(QStringLiteral("Keelhold"));                                               \
        Translations::install(QLocale(qEnvironmentVariable("KEELHOLD_TEST_LANGUAGE", QStringLiteral("en"))));          \
        TestObject tc;                                                                                                 \
        QTEST_SET_MAIN_SOURCE_PATH                                                                                     \
        return QTest::qExec(&tc, argc, argv);                                                                          \
    }
