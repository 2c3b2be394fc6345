#pragma once

#include <QStringList>

// keelhold-cli keep <TeslaCam folder> --vault DIR [--event ID]... [--timeout SECONDS] [--pretty]
namespace KeepCommand {
int run(const QStringList &arguments);
} // namespace KeepCommand
