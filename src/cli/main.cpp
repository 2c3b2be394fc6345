#include "cli/CliDispatch.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("keelhold-cli"));
    QCoreApplication::setOrganizationName(QStringLiteral("Keelhold"));
    return CliDispatch::run(QCoreApplication::arguments());
}
