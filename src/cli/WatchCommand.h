#pragma once

#include <QStringList>

// keelhold-cli watch: keeps what is new from every TeslaCam drive that
// appears, until stopped; the service a user unit runs.
namespace WatchCommand {

int run(const QStringList &arguments);

} // namespace WatchCommand
