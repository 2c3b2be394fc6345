#pragma once

#include <QStringList>

// keelhold-cli scan <TeslaCam folder> [--pretty]
namespace ScanCommand {
int run(const QStringList &arguments);
} // namespace ScanCommand
