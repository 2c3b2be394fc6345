#pragma once

#include "model/TeslaEvent.h"

#include <QHash>
#include <QString>
#include <chrono>
#include <stop_token>
#include <vector>

// How much of an encrypted event can be watched here: its clips whose keys
// are held, those still locked, and those that can never be unlocked (no
// key written, a damaged header). Clear events have none of these.
struct KeyCoverage {
    int unlocked = 0;
    int locked = 0;
    int never = 0;

    // Every clip that can be unlocked is.
    bool isUnlocked() const { return unlocked > 0 && locked == 0; }
    bool operator==(const KeyCoverage &) const = default;

    // By event id, for the encrypted events only. Reads each encrypted clip's
    // header (8 KiB) under a short limit; a clip that doesn't answer counts
    // as locked. Stops early when asked.
    static QHash<QString, KeyCoverage> of(const std::vector<TeslaEvent> &events, std::stop_token stop = {});
    static constexpr std::chrono::milliseconds headerTimeout{3000};
};
