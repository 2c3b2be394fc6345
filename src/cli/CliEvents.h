#pragma once

#include "model/TeslaEvent.h"

#include <QString>
#include <QStringList>
#include <optional>

// One event by its id, in a TeslaCam folder or else in a Vault folder.
namespace CliEvents {

struct Found {
    std::optional<TeslaEvent> event;
    QString vaultURL; // the folder, when the event was found as a kept one
};
// On failure *error holds the sentence to print.
Found find(const QString &root, const QString &id, QString *error);

QStringList cameraNames();

} // namespace CliEvents
