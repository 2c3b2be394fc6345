#include "model/ClipHealth.h"
#include "model/ClipRef.h"
#include "model/DriveScan.h"
#include "model/JsonCoding.h"
#include "model/ScanIssue.h"
#include "model/TeslaEvent.h"
#include "model/VolumeFormat.h"

#include <QJsonDocument>
#include <QRandomGenerator>
#include <QtTest>
#include <cstring>

namespace {
ClipRef clip(const QString &name, Camera camera, double start, qint64 size = 100, ClipHealth health = ClipHealth::unknown)
{
    ClipRef c;
    c.url = QStringLiteral("/drive/TeslaCam/SentryClips/e/") + name;
    c.camera = camera;
    c.startDate = Date(start);
    c.fileSize = size;
    c.health = health;
    return c;
}

template <typename T>
T roundTrip(const T &value)
{
    const QByteArray text = JsonCoding::toCompactJson(value.toJson());
    return T::fromJson(JsonCoding::parseObject(text));
}

TeslaEvent sampleEvent()
{
    TeslaEvent e;
    e.kind = EventKind::saved;
    e.folderURL = QStringLiteral("/media/user/TESLA DRIVE/TeslaCam/SavedClips/2026-07-21_02-11-05");
    e.folderName = QStringLiteral("2026-07-21_02-11-05");
    e.timestamp = Date(806292665.123456789);
    e.city = QStringLiteral("Zürich");
    e.latitude = 47.3769;
    e.longitude = 8.5417;
    e.reasonRaw = QStringLiteral("sentry_aware_accel_0.61");
    e.reason.category = ReasonCategory::impact;
    e.reason.raw = e.reasonRaw;
    e.reason.accelValue = 0.61;
    e.triggerCameraRaw = QStringLiteral("0");
    e.clips = {clip(QStringLiteral("a-front.mp4"), Camera::front, 806292600.5, 31000000, ClipHealth::ok)};
    e.clips[0].duration = 59.97;
    e.thumbURL = e.folderURL + QStringLiteral("/thumb.png");
    e.missingEventJSON = false;
    return e;
}
} // namespace

class FootageModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eventDerivedValuesWithClips()
    {
        TeslaEvent e;
        e.clips = {clip("1", Camera::back, 1000, 5'000'000'000LL, ClipHealth::encrypted),
                   clip("2", Camera::front, 1000, 7, ClipHealth::timedOut),
                   clip("3", Camera::front, 1120, 3, ClipHealth::zeroByte),
                   clip("4", Camera::front, 1060, 1, ClipHealth::ok)};
        e.clips[3].duration = 5.0; // never looked at by approximateDuration
        QCOMPARE(e.totalBytes(), qint64(5'000'000'011LL));
        QCOMPARE(e.corruptClipCount(), 2); // encrypted is not damage
        QCOMPARE(*e.earliestClipDate(), Date(1000));
        QCOMPARE(*e.latestClipDate(), Date(1120));
        QCOMPARE(e.approximateDuration(), 180.0);
        QCOMPARE(e.cameras(), (std::vector<Camera>{Camera::front, Camera::back}));

        TeslaEvent one;
        one.clips = {clip("x", Camera::leftRepeater, 5, 1)};
        one.clips[0].duration = 12.0;
        QCOMPARE(one.approximateDuration(), 60.0);
    }

    void clipsAndEventsSortStably()
    {
        std::vector<ClipRef> clips = {clip("back", Camera::back, 60),        clip("frontLate", Camera::front, 120),
                                      clip("rep", Camera::leftRepeater, 60), clip("front", Camera::front, 60),
                                      clip("pillar", Camera::leftPillar, 60), clip("backup", Camera::rearBackup, 60),
                                      clip("front2", Camera::front, 60)};
        ClipOrder::sort(clips);
        QStringList names;
        for (const auto &c : clips)
            names << c.fileName();
        QCOMPARE(names, QStringList({"front", "front2", "pillar", "rep", "back", "backup", "frontLate"}));

        // Events: newest first, and stable too.
        std::vector<TeslaEvent> events;
        for (const auto &[name, time] : {std::pair{"a", 10.0}, {"b", 30.0}, {"c", 10.0}, {"d", 20.0}}) {
            events.emplace_back().folderName = QString::fromLatin1(name);
            events.back().timestamp = Date(time);
        }
        EventOrder::sortNewestFirst(events);
        names.clear();
        for (const auto &e : events)
            names << e.folderName;
        QCOMPARE(names, QStringList({"b", "d", "a", "c"}));
    }

    // A cached scan found for a drive mounted elsewhere points at where it is now.
    void cachedScanFollowsItsDrive()
    {
        DriveScan scan;
        scan.teslaCamURL = QStringLiteral("/media/me/TESLA/TeslaCam");
        TeslaEvent event;
        event.folderURL = scan.teslaCamURL + QStringLiteral("/SentryClips/2024-06-01_10-00-00");
        event.thumbURL = event.folderURL + QStringLiteral("/thumb.png");
        ClipRef clip;
        clip.url = event.folderURL + QStringLiteral("/2024-06-01_09-59-00-front.mp4");
        event.clips = {clip};
        scan.events = {event};
        scan.issues = {{ScanIssue::Kind::unknownFile, scan.teslaCamURL + QStringLiteral("/notes.txt")},
                       {ScanIssue::Kind::unknownFile, QStringLiteral("/media/me/TESLA/TeslaCamBackup/x.mp4")}};

        const DriveScan moved = scan.rebased(QStringLiteral("/media/me/TESLA1/TeslaCam/"));
        QCOMPARE(moved.teslaCamURL, QStringLiteral("/media/me/TESLA1/TeslaCam"));
        QCOMPARE(moved.events[0].folderURL, QStringLiteral("/media/me/TESLA1/TeslaCam/SentryClips/2024-06-01_10-00-00"));
        QCOMPARE(moved.events[0].thumbURL, moved.events[0].folderURL + QStringLiteral("/thumb.png"));
        QCOMPARE(moved.events[0].clips[0].url, moved.events[0].folderURL + QStringLiteral("/2024-06-01_09-59-00-front.mp4"));
        QCOMPARE(moved.issues[0].path, QStringLiteral("/media/me/TESLA1/TeslaCam/notes.txt"));
        QCOMPARE(moved.issues[1].path, scan.issues[1].path); // a folder that only starts alike stays
        QCOMPARE(scan.rebased(scan.teslaCamURL), scan);
    }

    // A fresh scan takes the earlier probe's verdict only for the same bytes:
    // same path and size, whichever event the clip falls in now.
    void freshScanKeepsEarlierVerdictsOnUnchangedClips()
    {
        DriveScan earlier;
        earlier.events.resize(2);
        earlier.events[0].clips = {clip("stump", Camera::front, 0, 500, ClipHealth::truncated),
                                   clip("good", Camera::back, 0, 1000, ClipHealth::ok),
                                   clip("growing", Camera::leftRepeater, 0, 2000, ClipHealth::unreadable)};
        earlier.events[0].clips[1].duration = 59.5;
        earlier.events[1].clips = {clip("regrouped", Camera::front, 60, 3000, ClipHealth::timedOut),
                                   clip("locked", Camera::back, 60, 4000, ClipHealth::unreadable)};

        DriveScan fresh;
        fresh.events.resize(1);
        fresh.events[0].clips = {clip("stump", Camera::front, 0, 500), clip("good", Camera::back, 0, 1000),
                                 clip("growing", Camera::leftRepeater, 0, 2500),
                                 clip("regrouped", Camera::front, 60, 3000),
                                 clip("locked", Camera::back, 60, 4000, ClipHealth::encrypted),
                                 clip("new", Camera::front, 120, 100)};
        const DriveScan merged = fresh.withProbeResultsFrom(earlier);
        std::vector<ClipHealth> healths;
        for (const ClipRef &c : merged.events[0].clips)
            healths.push_back(c.health);
        QCOMPARE(healths, (std::vector<ClipHealth>{ClipHealth::truncated, ClipHealth::ok, ClipHealth::unknown,
                                                   ClipHealth::timedOut, ClipHealth::encrypted, ClipHealth::unknown}));
        QCOMPARE(merged.events[0].clips[1].duration, std::optional(59.5));
        QCOMPARE(merged.events[0].corruptClipCount(), 2);
        QCOMPARE(fresh.withProbeResultsFrom(DriveScan{}), fresh);
    }

    // Every type, VolumeFormat and optional survives the round trip; a wrong
    // shape fails the whole value.
    void everyTypeRoundTrips()
    {
        const VolumeFormat odd = VolumeFormat::makeOther(QStringLiteral("  Wéird FS \"x\" "));
        QCOMPARE(roundTrip(odd), odd);
        for (const char *text : {R"({})", R"({"exFAT":{},"apfs":{}})", R"({"ntfs":{}})", R"({"other":{}})"})
            QVERIFY_THROWS_EXCEPTION(JsonCoding::DecodingError, VolumeFormat::fromJson(JsonCoding::parseObject(text)));

        // Absent optionals are omitted, and read back as absent (the scan's
        // second event): the scan below holds every type.
        TeslaEvent empty;
        empty.folderURL = "/media/user/TESLA/TeslaCam/SentryClips/2024-01-01_00-00-00";
        empty.folderName = "2024-01-01_00-00-00";
        const QJsonObject b = empty.toJson();
        for (const char *key : {"city", "latitude", "longitude", "reasonRaw", "triggerCameraRaw", "thumbURL"})
            QVERIFY2(!b.contains(QLatin1String(key)), key);

        const TeslaEvent e = sampleEvent();
        DriveScan scan;
        scan.teslaCamURL = "/media/user/TESLA/TeslaCam";
        scan.volumeName = "TESLA";
        scan.format = VolumeFormat::makeOther("ext4");
        scan.capacityBytes = 256'060'514'304LL;
        scan.freeBytes = 9'007'199'254'740'993LL; // above 2^53: must stay exact
        scan.events = {e, empty};
        scan.encryptedClipsPresent = true;
        scan.onSystemDisk = true;
        scan.issues = {ScanIssue{ScanIssue::Kind::badEventJSON, "/a/event.json"},
                       ScanIssue{ScanIssue::Kind::unknownFile, "/a/b c"}};
        scan.scannedAt = Date(816971552.9364347);
        const DriveScan back = roundTrip(scan);
        QCOMPARE(back, scan);
        QCOMPARE(std::pair(back.unknownFileCount(), back.unknownCameraSuffixCount()), std::pair(1, 0));
        // A scan stored before the computer's own disk was told apart reads as a drive.
        QJsonObject stored = scan.toJson();
        stored.remove("onSystemDisk");
        QVERIFY(!DriveScan::fromJson(stored).onSystemDisk);

        DriveScan noVolume = scan;
        noVolume.capacityBytes.reset();
        noVolume.freeBytes.reset();
        QVERIFY(!noVolume.toJson().contains("capacityBytes"));
        QCOMPARE(roundTrip(noVolume), noVolume);

        // Without a required key, or with a value of the wrong kind, nothing is read.
        const QJsonObject full = e.toJson();
        for (const char *key : {"kind", "folderURL", "folderName", "timestamp", "reason", "clips", "missingEventJSON"}) {
            QJsonObject o = full;
            o.remove(QLatin1String(key));
            QVERIFY_THROWS_EXCEPTION(JsonCoding::DecodingError, TeslaEvent::fromJson(o));
        }
        QJsonObject clipObject = full.value("clips").toArray().at(0).toObject();
        clipObject.insert("camera", "rear_view"); // an alias is not a raw value
        QVERIFY_THROWS_EXCEPTION(JsonCoding::DecodingError, ClipRef::fromJson(clipObject));
        clipObject.insert("camera", "back");
        clipObject.insert("fileSize", 1.5);
        QVERIFY_THROWS_EXCEPTION(JsonCoding::DecodingError, ClipRef::fromJson(clipObject));
    }

    void datesRoundTripBitExact()
    {
        auto *rng = QRandomGenerator::global();
        std::vector<double> values = {0.0, -0.0, 1e-300, 806292665.123456789, 816971552.9364347, -978307200.5,
                                      1.0 / 3.0, 123456789.00000001, 4.9e-324};
        for (int i = 0; i < 2000; ++i) {
            values.push_back((rng->generateDouble() - 0.3) * 2e9);
            quint64 bits = rng->generate64();
            double d;
            std::memcpy(&d, &bits, sizeof d);
            if (std::isfinite(d))
                values.push_back(d);
        }
        for (double v : values) {
            const double got = roundTrip(clip("a-front.mp4", Camera::front, v)).startDate.timeIntervalSinceReferenceDate();
            QVERIFY2(std::memcmp(&got, &v, sizeof v) == 0 || (got == 0.0 && v == 0.0),
                     qPrintable(QString::number(v, 'g', 17)));
        }
    }
};

QTEST_GUILESS_MAIN(FootageModelTest)
#include "tst_footagemodel.moc"
