#include "AppCommandLine.h"
#include "KeelholdApp.h"
#include "base/DiagnosticLog.h"
#include "base/Translations.h"
#include "state/SidebarSection.h"

#include <QQuickWindow>
#include <QTimer>

#include <QApplication>
#include <QIcon>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickStyle>
#include <QUrl>
#include <QtQml>

#include <cstdio>

int main(int argc, char *argv[])
{
    if (const auto answered = AppCommandLine::answerWithoutDisplay(argc, argv))
        return *answered;
    // A widgets application: the file dialogs fall back to Qt's own widgets.
    QApplication app(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("Keelhold"));
    QGuiApplication::setApplicationName(QStringLiteral("Keelhold"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Keelhold"));
    QGuiApplication::setApplicationVersion(QStringLiteral(KEELHOLD_VERSION));
    // Warnings and errors also go to a file Help can copy for a bug report.
    DiagnosticLog::install();
    // The desktop's language, English where Keelhold doesn't speak it.
    Translations::install();
    // Wayland's app id and the task bar's match with the installed .desktop file.
    QGuiApplication::setDesktopFileName(QStringLiteral(KEELHOLD_APP_ID));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral(KEELHOLD_APP_ID),
                                                    QIcon(QStringLiteral(":/keelhold/" KEELHOLD_APP_ID ".svg"))));
    const AppCommandLine::Choice choice = AppCommandLine::parse(QCoreApplication::arguments());
    if (choice.exitCode)
        return *choice.exitCode;

    UiBridge::applyStoredHardwareDecoding();
    KeelholdApp keelhold;
    AppState &appState = keelhold.appState();
    [[maybe_unused]] UiBridge &ui = keelhold.ui();
    // --sample: straight into the bundled footage, past the wizard.
    if (choice.sample) {
        if (!AppState::sampleFootageURL())
            std::fputs(qPrintable(QCoreApplication::translate(
                           "AppCommandLine", "keelhold: the sample footage is not installed, so Keelhold starts without it.")
                       + QLatin1Char('\n')),
                       stderr);
        appState.loadSampleFootage();
    }
    if (choice.showVault)
        appState.setSelectedSection(SidebarSection::vault);

    QQmlApplicationEngine &engine = keelhold.qmlEngine();
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &app,
                     [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    keelhold.load();
    // Test hook: KEELHOLD_SCREENSHOT=<png> grabs the window after a short wait
    // (KEELHOLD_SCREENSHOT_MS) and quits; KEELHOLD_SECTION picks a section first.
    const QString shot = qEnvironmentVariable("KEELHOLD_SCREENSHOT");
    if (!shot.isEmpty()) {
        const auto &sections = SidebarSection::allCases();
        if (const int section = qEnvironmentVariableIntValue("KEELHOLD_SECTION"); section >= 0 && section < int(sections.size()))
            appState.setSelectedSection(sections[size_t(section)]);
        if (qEnvironmentVariableIsSet("KEELHOLD_SCAN")) {
            appState.setShowOnboarding(false);
            appState.beginScan(qEnvironmentVariable("KEELHOLD_SCAN"));
        }
        if (qEnvironmentVariableIsSet("KEELHOLD_HELP") && !engine.rootObjects().isEmpty())
            QMetaObject::invokeMethod(engine.rootObjects().first(), "showHelp",
                                      Q_ARG(QVariant, qEnvironmentVariableIntValue("KEELHOLD_HELP")));
        const int ms = qEnvironmentVariableIsSet("KEELHOLD_SCREENSHOT_MS") ? qEnvironmentVariableIntValue("KEELHOLD_SCREENSHOT_MS") : 1500;
        QTimer::singleShot(ms, &app, [&engine, shot] {
            QQuickWindow *target = nullptr;
            for (QWindow *w : QGuiApplication::topLevelWindows())
                if (auto *q = qobject_cast<QQuickWindow *>(w); q && q->isVisible()
                    && (!target || q->objectName() == QLatin1String("helpWindow")))
                    target = q;
            if (target)
                target->grabWindow().save(shot);
            QCoreApplication::exit(target ? 0 : 3);
        });
    }
    return app.exec();
}
