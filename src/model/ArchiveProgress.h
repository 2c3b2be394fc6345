#pragma once

#include <QString>
#include <functional>
#include <optional>

// What a running archive run reports, per file and at each event's end.
struct ArchiveProgress {
    qint64 bytesCopied = 0;  // bytes of files finished so far
    qint64 totalBytes = 0;   // the plan's clip bytes; bytesCopied may end a little above it
    int eventsCompleted = 0; // index of the event in work; after its end, index + 1
    int totalEvents = 0;
    std::optional<QString> currentFileName; // nothing at an event's end

    bool operator==(const ArchiveProgress &) const = default;
};

using ArchiveProgressCallback = std::function<void(const ArchiveProgress &)>;
