#pragma once

#include "model/ClipHealth.h"
#include "model/ClipRef.h"
#include "model/TeslaEvent.h"

#include <QString>
#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

// Finds out what condition each clip is really in: empty, a stump, a movie
// that plays (and how long it runs), the car's own encrypted footage, or
// damage. Every call blocks; run it on a pool thread.
namespace ClipProber {

inline constexpr std::chrono::milliseconds defaultTimeout = std::chrono::seconds(10);
// A non-empty file smaller than this can't be a minute of footage.
inline constexpr qint64 minimumBelievableSize = 65536;
// Probes in flight at once when the engine runs a pass.
inline constexpr int engineConcurrencyCap = 4;

struct ProbeResult {
    ClipHealth health = ClipHealth::unknown;
    std::optional<double> duration; // seconds

    bool operator==(const ProbeResult &) const = default;
};

// completed, total. Called from the thread that runs probeAll.
using Progress = std::function<void(int completed, int total)>;

// Every failure ends in a health value. The one exception is the caller's
// own stop request, which throws CancellationError.
ProbeResult probeDetailed(const ClipRef &clip, std::chrono::milliseconds timeout = defaultTimeout,
                          std::stop_token stop = {});
ClipHealth probe(const ClipRef &clip, std::chrono::milliseconds timeout = defaultTimeout, std::stop_token stop = {});

// Probes every clip of every event again, at most concurrencyCap at once,
// and returns a copy of the events with health and durations filled in. A
// probe that yields no duration leaves an earlier one in place. A negative
// cap is a programming error and stops the process. Throws only
// CancellationError, once stop was requested and the probes in flight ended.
std::vector<TeslaEvent> probeAll(const std::vector<TeslaEvent> &events, std::chrono::milliseconds timeout,
                                 int concurrencyCap, const Progress &progress = {}, std::stop_token stop = {});

// True when the file's first 12 bytes can be read and "ftyp" stands at
// offset 4, as in every MP4 file. Never blocks on a FIFO or device node.
bool sniffFtyp(const QString &path);

// True when the file begins as an eCryptfs lower file does: an 8-byte size,
// then two 32-bit words whose XOR is the eCryptfs marker. The car's
// encrypted clips look like this and never like an MP4.
bool sniffEcryptfs(const QString &path);

} // namespace ClipProber
