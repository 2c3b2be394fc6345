#pragma once

#include <QStringList>

// keelhold-cli telemetry <folder> --event ID [--camera CAMERA] [--format csv|json|gpx] [-o FILE]
namespace TelemetryCommand {
int run(const QStringList &arguments);
} // namespace TelemetryCommand
