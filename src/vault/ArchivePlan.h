#pragma once

#include "model/TeslaEvent.h"
#include "model/ArchivedFile.h"

#include <vector>

// Which of the chosen events are new to the Vault, and what the new ones weigh.
struct ArchivePlan {
    struct Item {
        TeslaEvent event;
        bool isDuplicate = false; // the Vault already holds this event with the same files
        // The files to copy, as planned (ArchiveEngine::sourceFiles); empty
        // means they are worked out when the run reaches the event.
        std::vector<QString> sources;
        // Files an earlier run cut off already placed in the Vault: taken as
        // they are when the drive still holds the same name at the same size.
        std::vector<ArchivedFile> alreadyKept;

        bool operator==(const Item &) const = default;
    };

    // One per event given, in the order given; duplicates stay in the list.
    std::vector<Item> items;

    std::vector<Item> newItems() const;
    // Clip sizes as the scan recorded them; event.json and thumbnails are not counted.
    qint64 totalNewBytes() const;

    bool operator==(const ArchivePlan &) const = default;
};
