#include "base/Translations.h"
#include "cli/CliDispatch.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <cstring>
#include <memory>

int main(int argc, char **argv)
{
    // The report lays out text and pictures, which takes Qt's graphics side:
    // offscreen, so it runs without a display (over ssh, in a service).
    std::unique_ptr<QCoreApplication> app;
    if (argc > 1 && std::strcmp(argv[1], "report") == 0) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("keelhold-cli"));
    QCoreApplication::setOrganizationName(QStringLiteral("Keelhold"));
    // Sentences in the user's language; what scripts read never changes.
    Translations::install();
    return CliDispatch::run(QCoreApplication::arguments());
}
