#pragma once

#include <QString>
#include <optional>

// What an inbox row's picture task depends on: the picture's path and the
// access epoch, so that a row whose picture failed while access was missing
// tries again as soon as access changes.
struct ThumbTaskKey {
    std::optional<QString> url;
    int epoch = 0;
    bool operator==(const ThumbTaskKey &) const = default;
};
