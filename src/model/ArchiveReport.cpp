#include "model/ArchiveReport.h"

#include "model/JsonCoding.h"

#include <QHashFunctions>
#include <algorithm>

QJsonObject ArchiveReport::FailedFile::toJson() const
{
    QJsonObject o;
    o.insert(QStringLiteral("path"), path);
    o.insert(QStringLiteral("reason"), reason);
    return o;
}

ArchiveReport::FailedFile ArchiveReport::FailedFile::fromJson(const QJsonValue &value)
{
    const QJsonObject o = JsonCoding::requireObject(value, "FailedFile");
    return {JsonCoding::requireString(o, "path"), JsonCoding::requireString(o, "reason")};
}

QString ArchiveReport::rawValue(StopReason reason)
{
    switch (reason) {
    case StopReason::driveDisconnected: return QStringLiteral("driveDisconnected");
    }
    return {};
}

std::optional<ArchiveReport::StopReason> ArchiveReport::stopReasonFromRawValue(const QString &raw)
{
    if (raw == rawValue(StopReason::driveDisconnected))
        return StopReason::driveDisconnected;
    return std::nullopt;
}

int ArchiveReport::completeEvents() const
{
    return int(std::count_if(archivedEvents.begin(), archivedEvents.end(),
                             [](const ArchivedEvent &e) { return !e.isIncomplete(); }));
}

QJsonObject ArchiveReport::toJson() const
{
    using namespace JsonCoding;
    QJsonObject o;
    o.insert(QStringLiteral("archivedEvents"), encodeArray(archivedEvents));
    o.insert(QStringLiteral("skippedDuplicates"), skippedDuplicates);
    o.insert(QStringLiteral("failedFiles"), encodeArray(failedFiles));
    o.insert(QStringLiteral("bytesCopied"), bytesCopied);
    o.insert(QStringLiteral("cancelled"), cancelled);
    if (stoppedBecause)
        o.insert(QStringLiteral("stoppedBecause"), rawValue(*stoppedBecause));
    o.insert(QStringLiteral("plannedEvents"), plannedEvents);
    return o;
}

ArchiveReport ArchiveReport::fromJson(const QJsonValue &value)
{
    using namespace JsonCoding;
    const QJsonObject o = requireObject(value, "ArchiveReport");
    ArchiveReport r;
    r.archivedEvents = decodeArray<ArchivedEvent>(requireArray(o, "archivedEvents"));
    r.skippedDuplicates = int(requireInt64(o, "skippedDuplicates"));
    r.failedFiles = decodeArray<FailedFile>(requireArray(o, "failedFiles"));
    r.bytesCopied = requireInt64(o, "bytesCopied");
    r.cancelled = requireBool(o, "cancelled");
    if (const auto reason = optionalString(o, "stoppedBecause"))
        r.stoppedBecause = stopReasonFromRawValue(*reason);
    r.plannedEvents = int(optionalInt64(o, "plannedEvents").value_or(0));
    return r;
}

size_t qHash(const ArchiveReport::FailedFile &f, size_t seed) noexcept
{
    return qHashMulti(seed, f.path, f.reason);
}
