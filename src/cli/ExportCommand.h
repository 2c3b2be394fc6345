#pragma once

#include <QStringList>

// keelhold-cli export <TeslaCam folder> --event ID --camera CAMERA -o FILE [--from S] [--to S]
namespace ExportCommand {
int run(const QStringList &arguments);
} // namespace ExportCommand
