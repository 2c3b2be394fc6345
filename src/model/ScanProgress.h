#pragma once

#include <QString>
#include <functional>

// What a running scan reports; never stored.
struct ScanProgress {
    QString phase;
    int foldersScanned = 0;
    int eventsFound = 0;
    int clipsFound = 0;

    bool operator==(const ScanProgress &) const = default;
};

using ScanProgressCallback = std::function<void(const ScanProgress &)>;
