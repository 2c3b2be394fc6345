#pragma once

// The machine's monotonic clock, one for all players, in seconds. Players
// anchored to the same instant of it cannot drift apart.
namespace HostClock {
double now();
} // namespace HostClock
