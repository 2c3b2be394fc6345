#pragma once

#include <QStringList>

// keelhold-cli decrypt <TeslaCam or Vault folder> --event ID [--camera NAME] -o FOLDER [--token-file FILE]
namespace DecryptCommand {
int run(const QStringList &arguments);
} // namespace DecryptCommand
