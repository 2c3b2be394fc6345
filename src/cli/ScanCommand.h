#pragma once

#include <QStringList>

// keelhold-cli scan <TeslaCam folder> [--pretty] [--probe [--timeout SECONDS]]
namespace ScanCommand {
int run(const QStringList &arguments);
} // namespace ScanCommand
