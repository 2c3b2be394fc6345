#pragma once

#include <QJsonValue>
#include <QString>
#include <array>
#include <optional>

// Where the user stands with one event of the inbox.
class TriageState {
public:
    enum Value : quint8 { new_, reviewed, kept, dismissed };

    constexpr TriageState(Value v = new_) : value_(v) {}
    constexpr operator Value() const { return value_; }
    constexpr Value value() const { return value_; }

    static const std::array<TriageState, 4> &allCases();
    QString rawValue() const;
    QString displayName() const;
    static std::optional<TriageState> fromRawValue(QStringView raw);

    QJsonValue toJson() const { return rawValue(); }
    static TriageState fromJson(const QJsonValue &value);

private:
    Value value_;
};

inline size_t qHash(TriageState s, size_t seed = 0) noexcept { return size_t(s.value()) ^ seed; }
