#pragma once

#include <QString>
#include <array>
#include <optional>

// The two folders whose access is remembered across launches.
class BookmarkKey {
public:
    enum Value : quint8 { teslaDrive, vaultFolder };

    constexpr BookmarkKey(Value v) : value_(v) {}
    constexpr operator Value() const { return value_; }
    constexpr Value value() const { return value_; }

    static const std::array<BookmarkKey, 2> &allCases();
    QString rawValue() const;
    static std::optional<BookmarkKey> fromRawValue(QStringView raw);

private:
    Value value_;
};

inline size_t qHash(BookmarkKey k, size_t seed = 0) noexcept { return size_t(k.value()) ^ seed; }
