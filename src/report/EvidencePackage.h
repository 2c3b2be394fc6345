#pragma once

#include "model/TeslaEvent.h"

#include <QString>
#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

// One ZIP that an insurer or the police can check by themselves: the
// report, every original file byte for byte, and SHA256SUMS as
// `sha256sum -c` reads it, covering every file in the package.
namespace EvidencePackage {

struct Item {
    QString source;                // the file to put in, read-only (it may be on the car's drive)
    QString name;                  // its path inside the package, '/'-separated
    std::optional<QString> sha256; // what the report printed: other bytes fail the package
};

struct Options {
    std::function<void(double)> progress; // 0 to 1 by bytes, from the writing thread
    std::stop_token stop;
    std::chrono::milliseconds readLimit{10000}; // one open or read of a source that takes longer fails the package
    // The events whose drive the package must never be written to.
    std::vector<TeslaEvent> events;
    // Made once every item is in, from their digests in item order: one
    // more item (the report that lists them) put in before SHA256SUMS, so
    // the originals are read once.
    std::function<Item(const std::vector<QString> &digests)> last;
};

// Blocking. Written under a hidden name beside destination and renamed over
// it when whole; never onto the drive of options.events. Throws ReportError
// (nothing left behind, a file that was at destination as it was) or
// CancellationError (nothing left behind either).
void write(const std::vector<Item> &items, const QString &destination, const Options &options);

} // namespace EvidencePackage
