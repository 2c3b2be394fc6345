#pragma once

#include <QStringList>

// keelhold-cli vault list DIR [--pretty]
// keelhold-cli vault remove DIR EVENT_ID
// keelhold-cli vault verify DIR
namespace VaultCommand {
int run(const QStringList &arguments);
} // namespace VaultCommand
