#pragma once

#include <QStringList>

// keelhold-cli health <TeslaCam> [--vault DIR] [--probe]: the drive's health
// report as JSON, as the health screen would show it.
namespace HealthCommand {
int run(const QStringList &arguments);
}
