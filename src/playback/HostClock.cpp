#include "playback/HostClock.h"

#include <chrono>

namespace HostClock {
double now()
{
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}
} // namespace HostClock
