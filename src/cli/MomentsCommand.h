#pragma once

#include <QStringList>

// keelhold-cli moments <folder> --event ID [--format json|csv]
namespace MomentsCommand {
int run(const QStringList &arguments);
} // namespace MomentsCommand
