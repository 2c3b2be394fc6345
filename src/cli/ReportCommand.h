#pragma once

#include <QStringList>

// `keelhold-cli report`: the incident report of one event as a PDF, or the
// evidence package with every original, made offscreen.
namespace ReportCommand {
int run(const QStringList &arguments);
}
