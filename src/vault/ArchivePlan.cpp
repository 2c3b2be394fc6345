#include "vault/ArchivePlan.h"

std::vector<ArchivePlan::Item> ArchivePlan::newItems() const
{
    std::vector<Item> result;
    for (const auto &item : items)
        if (!item.isDuplicate)
            result.push_back(item);
    return result;
}

qint64 ArchivePlan::totalNewBytes() const
{
    qint64 total = 0;
    for (const auto &item : items)
        if (!item.isDuplicate)
            for (const auto &clip : item.event.clips)
                total += clip.fileSize;
    return total;
}
