#include "crypt/KeyCoverage.h"

#include "base/LogCategories.h"
#include "crypt/KeyStore.h"
#include "drive/EcryptfsHeader.h"
#include "base/IOWatchdog.h"

QHash<QString, KeyCoverage> KeyCoverage::of(const std::vector<TeslaEvent> &events, std::stop_token stop)
{
    QHash<QString, KeyCoverage> coverage;
    for (const TeslaEvent &event : events) {
        if (!event.encrypted)
            continue;
        KeyCoverage c;
        for (const ClipRef &clip : event.clips) {
            if (stop.stop_requested())
                return coverage;
            if (clip.health != ClipHealth::encrypted)
                continue;
            Ecryptfs::Header header;
            try {
                header = IOWatchdog::run(
                    headerTimeout, [path = clip.url](std::stop_token) { return Ecryptfs::read(path); }, stop);
            } catch (...) {
                KEELHOLD_LOG_CAUGHT(lcCrypt);
                ++c.locked;
                continue;
            }
            if (header.state != Ecryptfs::Header::State::ok)
                ++c.never;
            else if (KeyRing::keyFor(clip.url, header))
                ++c.unlocked;
            else
                ++c.locked;
        }
        coverage.insert(event.id(), c);
    }
    return coverage;
}
