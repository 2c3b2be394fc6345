#include "vault/VerificationLog.h"

#include "base/LogCategories.h"
#include "model/AtomicFile.h"
#include "model/JsonCoding.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>

namespace {

QJsonArray names(const QStringList &list)
{
    return QJsonArray::fromStringList(list);
}

QStringList namesFrom(const QJsonObject &o, const char *key)
{
    QStringList out;
    for (const QJsonValue &v : o.value(QLatin1String(key)).toArray())
        if (v.isString())
            out << v.toString();
    return out;
}

} // namespace

QJsonObject EventCheck::toJson() const
{
    QJsonObject o;
    o.insert(QStringLiteral("eventID"), eventID);
    o.insert(QStringLiteral("checkedAt"), JsonCoding::encodeDate(checkedAt));
    o.insert(QStringLiteral("verified"), verified);
    o.insert(QStringLiteral("changed"), names(changed));
    o.insert(QStringLiteral("missing"), names(missing));
    o.insert(QStringLiteral("unreadable"), names(unreadable));
    if (expectedFiles)
        o.insert(QStringLiteral("expectedFiles"), *expectedFiles);
    o.insert(QStringLiteral("keptFiles"), keptFiles);
    return o;
}

EventCheck EventCheck::fromJson(const QJsonValue &value)
{
    using namespace JsonCoding;
    const QJsonObject o = requireObject(value, "EventCheck");
    EventCheck c;
    c.eventID = requireString(o, "eventID");
    c.checkedAt = decodeDate(require(o, "checkedAt"), "checkedAt");
    c.verified = int(optionalInt64(o, "verified").value_or(0));
    c.changed = namesFrom(o, "changed");
    c.missing = namesFrom(o, "missing");
    c.unreadable = namesFrom(o, "unreadable");
    if (const auto expected = optionalInt64(o, "expectedFiles"))
        c.expectedFiles = int(*expected);
    c.keptFiles = int(optionalInt64(o, "keptFiles").value_or(0));
    return c;
}

void VerificationLog::record(const std::vector<EventCheck> &checks)
{
    for (const EventCheck &c : checks) {
        const auto it = events.constFind(c.eventID);
        if (it == events.cend() || !(c.checkedAt < it->checkedAt))
            events.insert(c.eventID, c);
    }
}

const EventCheck *VerificationLog::find(const QString &eventID) const
{
    const auto it = events.constFind(eventID);
    return it == events.cend() ? nullptr : &*it;
}

VerificationLog VerificationLog::load(const QString &vaultURL) noexcept
{
    VerificationLog log;
    try {
        QFile file(QDir(vaultURL).filePath(fileName));
        if (!file.open(QIODevice::ReadOnly))
            return log;
        const QJsonObject o = JsonCoding::parseObject(file.readAll());
        for (const QJsonValue &v : o.value(QStringLiteral("events")).toArray()) {
            // One damaged entry costs only itself.
            try {
                log.record({EventCheck::fromJson(v)});
            } catch (const JsonCoding::DecodingError &) {
            }
        }
        if (o.contains(QStringLiteral("wholeVaultCheckedAt")))
            log.wholeVaultCheckedAt = JsonCoding::decodeDate(o.value(QStringLiteral("wholeVaultCheckedAt")),
                                                             "wholeVaultCheckedAt");
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcVault);
        return {};
    }
    return log;
}

bool VerificationLog::save(const QString &vaultURL) const
{
    QJsonArray list;
    for (const EventCheck &c : events)
        list.append(c.toJson());
    QJsonObject o;
    o.insert(QStringLiteral("events"), list);
    if (wholeVaultCheckedAt)
        o.insert(QStringLiteral("wholeVaultCheckedAt"), JsonCoding::encodeDate(*wholeVaultCheckedAt));
    return AtomicFile::write(QDir(vaultURL).filePath(fileName), JsonCoding::toCompactJson(o));
}
