#pragma once

#include <chrono>
#include <stop_token>

// Reads the user is waiting for go first. A car's drive serves one read at
// a time, so a background pass over the drive (probing every clip) would
// put its reads ahead of the player's while an event opens; the pass waits
// between clips instead, never longer than maxYield at a time, so it is
// slowed, never starved.
namespace ReadPriority {

inline constexpr std::chrono::milliseconds maxYield{3000};

// Held while the user waits on the drive; any number may be held at once.
class Urgent {
public:
    Urgent();
    ~Urgent();
    Urgent(const Urgent &) = delete;
    Urgent &operator=(const Urgent &) = delete;
};

// Returns once no Urgent is held, limit has passed, or stop is requested.
void yieldToUrgent(std::stop_token stop = {}, std::chrono::milliseconds limit = maxYield);

// Background work waiting in yieldToUrgent right now, and whether any
// Urgent is held.
int yieldingCount();
bool isUrgent();

} // namespace ReadPriority
