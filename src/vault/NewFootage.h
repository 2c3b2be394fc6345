#pragma once

#include "model/TeslaEvent.h"
#include "vault/VaultIndex.h"

#include <vector>

// What of a drive the Vault doesn't hold yet, judged file by file, for a
// keep nobody asked for event by event (a drive coming in, the watch).
//
// A Sentry or saved event is new while the Vault's record of it lacks one of
// its clips at the same size. Recent driving rolls: the car drops its oldest
// minute and adds a new one, so the same drive comes back under another id
// with mostly the same files. Of it only the clips no kept recent drive
// holds are taken, grouped into drives again, so each minute is kept once.
namespace NewFootage {

std::vector<TeslaEvent> unkept(const std::vector<TeslaEvent> &events, const VaultIndex &vault, bool withRecent);

} // namespace NewFootage
