#pragma once

#include <QStringList>

// keelhold-cli unlock --token-file FILE | --forget
namespace UnlockCommand {
int run(const QStringList &arguments);
} // namespace UnlockCommand
