#include "model/DriveScan.h"

#include "model/JsonCoding.h"

#include <QDir>
#include <QHash>
#include <algorithm>

namespace {
int countIssues(const std::vector<ScanIssue> &issues, ScanIssue::Kind kind)
{
    return int(std::count_if(issues.begin(), issues.end(), [kind](const ScanIssue &i) { return i.kind == kind; }));
}
} // namespace

DriveScan DriveScan::rebased(const QString &root) const
{
    DriveScan moved = *this;
    const QString from = QDir::cleanPath(teslaCamURL);
    const QString to = QDir::cleanPath(root);
    if (from == to || from.isEmpty())
        return moved;
    auto move = [&](QString &path) {
        if (path == from)
            path = to;
        else if (path.startsWith(from + QLatin1Char('/')))
            path = to + path.mid(from.size());
    };
    move(moved.teslaCamURL);
    for (TeslaEvent &event : moved.events) {
        move(event.folderURL);
        if (event.thumbURL)
            move(*event.thumbURL);
        for (ClipRef &clip : event.clips)
            move(clip.url);
    }
    for (ScanIssue &issue : moved.issues)
        move(issue.path);
    return moved;
}

DriveScan DriveScan::withProbeResultsFrom(const DriveScan &earlier) const
{
    QHash<QString, const ClipRef *> earlierByURL;
    for (const TeslaEvent &event : earlier.events)
        for (const ClipRef &clip : event.clips)
            earlierByURL.insert(clip.url, &clip);
    DriveScan merged = *this;
    for (TeslaEvent &event : merged.events) {
        for (ClipRef &clip : event.clips) {
            const ClipRef *before = earlierByURL.value(clip.url);
            // Another size is other bytes, a clip the car went on writing.
            if (!before || before->fileSize != clip.fileSize || clip.health != ClipHealth::unknown)
                continue;
            clip.health = before->health;
            if (!clip.duration)
                clip.duration = before->duration;
        }
    }
    return merged;
}

int DriveScan::unknownFileCount() const { return countIssues(issues, ScanIssue::Kind::unknownFile); }
int DriveScan::unknownCameraSuffixCount() const { return countIssues(issues, ScanIssue::Kind::unknownCameraSuffix); }

QJsonObject DriveScan::toJson() const
{
    using namespace JsonCoding;
    QJsonObject o;
    o.insert(QStringLiteral("teslaCamURL"), encodeURL(teslaCamURL));
    o.insert(QStringLiteral("volumeName"), volumeName);
    o.insert(QStringLiteral("format"), format.toJson());
    insertOptional(o, "capacityBytes", capacityBytes);
    insertOptional(o, "freeBytes", freeBytes);
    o.insert(QStringLiteral("onSystemDisk"), onSystemDisk);
    o.insert(QStringLiteral("events"), encodeArray(events));
    o.insert(QStringLiteral("encryptedClipsPresent"), encryptedClipsPresent);
    o.insert(QStringLiteral("issues"), encodeArray(issues));
    o.insert(QStringLiteral("scannedAt"), encodeDate(scannedAt));
    return o;
}

DriveScan DriveScan::fromJson(const QJsonValue &value)
{
    using namespace JsonCoding;
    const QJsonObject o = requireObject(value, "DriveScan");
    DriveScan s;
    s.teslaCamURL = decodeURL(require(o, "teslaCamURL"), "teslaCamURL");
    s.volumeName = requireString(o, "volumeName");
    s.format = VolumeFormat::fromJson(require(o, "format"));
    s.capacityBytes = optionalInt64(o, "capacityBytes");
    s.freeBytes = optionalInt64(o, "freeBytes");
    // Absent in scans stored before it was known.
    if (o.contains(QStringLiteral("onSystemDisk")))
        s.onSystemDisk = requireBool(o, "onSystemDisk");
    s.events = decodeArray<TeslaEvent>(requireArray(o, "events"));
    s.encryptedClipsPresent = requireBool(o, "encryptedClipsPresent");
    s.issues = decodeArray<ScanIssue>(requireArray(o, "issues"));
    s.scannedAt = decodeDate(require(o, "scannedAt"), "scannedAt");
    return s;
}
