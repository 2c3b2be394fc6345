#include "model/TriageState.h"

#include "model/JsonCoding.h"

#include <QCoreApplication>

namespace {
constexpr std::array<const char *, 4> raws{"new", "reviewed", "kept", "dismissed"};
// Looked up in the translation when read.
constexpr std::array<const char *, 4> displays{
    //: State of an event the user has not looked at yet
    QT_TRANSLATE_NOOP("TriageState", "New"),
    //: State of an event the user has watched
    QT_TRANSLATE_NOOP("TriageState", "Reviewed"),
    //: State of an event that is kept in the Vault
    QT_TRANSLATE_NOOP("TriageState", "In Vault"),
    //: State of an event the user chose not to keep
    QT_TRANSLATE_NOOP("TriageState", "Dismissed"),
};
} // namespace

const std::array<TriageState, 4> &TriageState::allCases()
{
    static const std::array<TriageState, 4> all{new_, reviewed, kept, dismissed};
    return all;
}

QString TriageState::rawValue() const { return QLatin1String(raws[size_t(value_)]); }
QString TriageState::displayName() const
{
    return QCoreApplication::translate("TriageState", displays[size_t(value_)]);
}

std::optional<TriageState> TriageState::fromRawValue(QStringView raw)
{
    for (const TriageState s : allCases())
        if (raw == QLatin1String(raws[size_t(s.value())]))
            return s;
    return std::nullopt;
}

TriageState TriageState::fromJson(const QJsonValue &value)
{
    return JsonCoding::decodeRawEnum<TriageState>(value, "TriageState");
}
