#include "model/BookmarkKey.h"

namespace {
constexpr std::array<const char *, 2> raws{"teslaDrive", "vaultFolder"};
} // namespace

const std::array<BookmarkKey, 2> &BookmarkKey::allCases()
{
    static const std::array<BookmarkKey, 2> all{teslaDrive, vaultFolder};
    return all;
}

QString BookmarkKey::rawValue() const { return QLatin1String(raws[size_t(value_)]); }

std::optional<BookmarkKey> BookmarkKey::fromRawValue(QStringView raw)
{
    for (const BookmarkKey k : allCases())
        if (raw == QLatin1String(raws[size_t(k.value())]))
            return k;
    return std::nullopt;
}
