#include "drive/ClipCalendar.h"
#include "drive/ClipNames.h"
#include "drive/TeslaCamParser.h"
#include "support/EcryptfsWriter.h"
#include "support/FaultyFs.h"
#include "support/TeslaCamFixture.h"
#include "support/TmpfsMount.h"

#include <QTemporaryDir>
#include <QtTest>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace {
QStringList issueList(const DriveScan &scan)
{
    QStringList out;
    for (const auto &i : scan.issues)
        out << i.kind.rawValue() + QLatin1Char(' ') + i.path.section(QLatin1Char('/'), -2);
    return out;
}

// Each event's id, " locked" after the car's encrypted ones.
QStringList idsOf(const DriveScan &scan)
{
    QStringList ids;
    for (const auto &e : scan.events)
        ids << e.id() + (e.encrypted ? QStringLiteral(" locked") : QString());
    return ids;
}

const TeslaEvent *findEvent(const DriveScan &scan, const QString &id)
{
    for (const auto &e : scan.events)
        if (e.id() == id)
            return &e;
    return nullptr;
}

Date local(int y, int mo, int d, int h, int mi, int s)
{
    return ClipCalendar::dateFromComponents(y, mo, d, h, mi, s);
}
} // namespace

class TeslaCamParserTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "Europe/Berlin");
        tzset();
    }

    void fullDrive()
    {
        QTemporaryDir tmp;
        TeslaCamFixture fx(tmp.path() + "/TeslaCam");
        const QString e1 = fx.addEvent("SentryClips", "2024-06-01_15-05-00",
                                       TeslaCamFixture::eventJson("2024-06-01T15:04:31", "sentry_aware_object_detection",
                                                                  "Taylor", "30.6075", "-97.4812", "3"));
        fx.addClip(e1, "2024-06-01_15-04-00", "back", 5000);
        fx.addClip(e1, "2024-06-01_15-04-00", "front", 4000);
        fx.addClip(e1, "2024-06-01_15-03-00", "rear_view", 3000);
        fx.addClip(e1, "2024-06-01_15-03-00", "left_b_pillar", 2000);
        fx.addClip(e1, "2024-06-01_15-03-00", "fisheye", 1000);       // unknown suffix
        fx.addClip(e1, "2024-06-01_25-03-00", "front", 1000);         // lenient calendar: next day 01:03
        TeslaCamFixture::writeFile(e1 + "/notes.txt", "hi");           // unknown file
        TeslaCamFixture::writeFile(e1 + "/desktop.ini", "x");          // ignored
        TeslaCamFixture::writeFile(e1 + "/Thumbs.db", "x");            // ignored
        TeslaCamFixture::writeFile(e1 + "/._2024-06-01_15-04-00-front.mp4", "x"); // ignored (hidden too)
        TeslaCamFixture::writeFile(e1 + "/front.mp4", "x");            // no date: unknown file
        TeslaCamFixture::writeFile(e1 + "/2024-06-01_15-04-00-front.MP4", "x"); // upper-case extension
        TeslaCamFixture::makeDir(e1 + "/sub");                          // a folder is an unknown file here

        const QString bad = fx.addEvent("SentryClips", "2024-06-01_15-05-00b", std::nullopt); // foreign name
        fx.addClip(bad, "2024-06-01_15-04-00", "front");
        fx.addEvent("SentryClips", "2024-05-01_10-00-00", QByteArray("{broken"), false);
        fx.addEventFolder("SavedClips", "2024-05-02_11-00-00"); // empty
        fx.addEvent("SavedClips", "2024-06-01_15-05-00",
                    TeslaCamFixture::eventJson("2024-06-01T15:04:31", "user_interaction_honk"));
        TeslaCamFixture::writeFile(fx.path("SentryClips/stray.mp4"), "x");
        TeslaCamFixture::writeFile(fx.path("SentryClips/.DS_Store"), "x");
        TeslaCamFixture::writeFile(fx.path("SentryClips/Thumbs.db"), "x");
        TeslaCamFixture::makeDir(fx.path("TeslaTrackMode"));      // not looked at
        TeslaCamFixture::writeFile(fx.path("readme.txt"), "x");   // not looked at

        QList<ScanProgress> progress;
        const DriveScan scan = TeslaCamParser::scan(fx.root(), [&](const ScanProgress &p) { progress << p; });

        QCOMPARE(scan.teslaCamURL, fx.root());
        // Same timestamp: Sentry before saved (stable); then older events.
        QCOMPARE(idsOf(scan), QStringList({"sentry|2024-06-01_15-05-00", "saved|2024-06-01_15-05-00",
                                   "saved|2024-05-02_11-00-00", "sentry|2024-05-01_10-00-00"}));

        const TeslaEvent &s = scan.events[0];
        // The time from event.json, not the folder.
        QCOMPARE(std::tuple(s.kind, s.folderURL, s.timestamp, s.city, s.latitude, s.longitude, s.missingEventJSON),
                 std::tuple(EventKind(EventKind::sentry), e1, local(2024, 6, 1, 15, 4, 31), std::optional<QString>("Taylor"),
                            std::optional<double>(30.6075), std::optional<double>(-97.4812), false));
        QCOMPARE(std::tuple(s.reasonRaw, s.reason.category, s.triggerCameraRaw, s.thumbURL),
                 std::tuple(std::optional<QString>("sentry_aware_object_detection"), ReasonCategory(ReasonCategory::approach),
                            std::optional<QString>("3"), std::optional<QString>(e1 + "/thumb.png")));
        // Not probed yet: health unknown, no duration.
        QStringList clips;
        for (const auto &c : s.clips)
            clips << c.camera.rawValue() + "@" + c.startDate.formatLocal("HH:mm") + "=" + QString::number(c.fileSize) + " "
                         + c.health.rawValue() + (c.duration ? " timed" : "");
        QCOMPARE(clips, QStringList({"left_pillar@15:03=2000 unknown", "back@15:03=3000 unknown", "front@15:04=4000 unknown",
                                     "back@15:04=5000 unknown", "front@01:03=1000 unknown"}));

        const TeslaEvent &broken = *findEvent(scan, "sentry|2024-05-01_10-00-00");
        QCOMPARE(std::tuple(broken.missingEventJSON, broken.timestamp, broken.reason.category, broken.thumbURL.has_value()),
                 std::tuple(false, local(2024, 5, 1, 10, 0, 0), ReasonCategory(ReasonCategory::unknown), false));

        const TeslaEvent &empty = *findEvent(scan, "saved|2024-05-02_11-00-00");
        QCOMPARE(std::tuple(empty.clips.size(), empty.missingEventJSON, empty.reason.label()),
                 std::tuple(size_t(0), true, QStringLiteral("Sentry event")));

        QCOMPARE(findEvent(scan, "saved|2024-06-01_15-05-00")->reason.category, ReasonCategory(ReasonCategory::honk));

        QCOMPARE(issueList(scan),
                 QStringList({"badEventJSON 2024-05-01_10-00-00/event.json",
                              "unknownCameraSuffix 2024-06-01_15-05-00/2024-06-01_15-03-00-fisheye.mp4",
                              "unknownFile 2024-06-01_15-05-00/2024-06-01_15-04-00-front.MP4",
                              "unknownFile 2024-06-01_15-05-00/front.mp4",
                              "unknownFile 2024-06-01_15-05-00/notes.txt",
                              "unknownFile 2024-06-01_15-05-00/sub",
                              "unknownFile SentryClips/stray.mp4"}));
        QCOMPARE(scan.unknownCameraSuffixCount(), 1);

        // Progress: counts growing, clips only at the end.
        const ScanProgress &last = progress.last();
        QCOMPARE(std::tuple(last.foldersScanned, last.eventsFound, last.clipsFound), std::tuple(5, 4, 5));
        for (int i = 0; i + 1 < progress.size(); ++i)
            QCOMPARE(progress[i].clipsFound, 0);
    }

    void recentDrivingIsCutIntoDrives()
    {
        QTemporaryDir tmp;
        TeslaCamFixture fx(tmp.path() + "/TeslaCam");
        // Drive A: 10:00, 10:01, then a lost minute (gap 150 s = tolerance: same drive).
        fx.addRecentClip("2024-03-09_10-00-00", "front");
        fx.addRecentClip("2024-03-09_10-00-00", "back");
        fx.addRecentClip("2024-03-09_10-01-00", "front");
        fx.addRecentClip("2024-03-09_10-03-30", "left_repeater");
        // Drive B: 151 s later.
        fx.addRecentClip("2024-03-09_10-06-01", "right_repeater");
        fx.addRecentClip("2024-03-09_10-06-01", "front");
        TeslaCamFixture::writeFile(fx.path("RecentClips/event.json"), "{}"); // no special meaning here
        TeslaCamFixture::makeDir(fx.path("RecentClips/old"));
        TeslaCamFixture::writeFile(fx.path("RecentClips/Thumbs.db"), "x");

        const DriveScan scan = TeslaCamParser::scan(fx.root());
        QCOMPARE(idsOf(scan), (QStringList{"recent|recent_2024-03-09_10-06-01", "recent|recent_2024-03-09_10-00-00"}));
        const TeslaEvent &b = scan.events[0];
        const TeslaEvent &a = scan.events[1];
        QCOMPARE(a.clips.size(), size_t(4));
        QCOMPARE(std::tuple(a.clips[0].camera, a.clips[1].camera, a.folderURL, a.reason.category),
                 std::tuple(Camera(Camera::front), Camera(Camera::back), fx.path("RecentClips"),
                            ReasonCategory(ReasonCategory::recentDrive)));
        QVERIFY(a.missingEventJSON && !a.thumbURL && !a.city && !a.reasonRaw);
        QCOMPARE(b.clips.size(), size_t(2));
        QCOMPARE(std::pair(b.timestamp, b.clips[0].camera), std::pair(local(2024, 3, 9, 10, 6, 1), Camera(Camera::front)));
        QCOMPARE(scan.issues.size(), size_t(2));
        QCOMPARE(std::pair(scan.issues[0].path, scan.issues[1].path),
                 std::pair(fx.path("RecentClips/event.json"), fx.path("RecentClips/old")));
    }

    // Same rules as clear footage, beside it: clips encrypted by where they lie; the car-only event.json is no fault.
    void encryptedClipsAreListedBesideClearOnes()
    {
        QTemporaryDir tmp;
        TeslaCamFixture fx(tmp.path() + "/TeslaCam");
        const QString clear = fx.addEvent("SentryClips", "2026-05-01_10-00-00",
                                          TeslaCamFixture::eventJson("2026-05-01T09:59:40", "user_interaction_honk"));
        fx.addClip(clear, "2026-05-01_09-59-00", "front");
        const QByteArray sealedJson = EcryptfsWriter::encrypt("{\"city\":\"x\"}", EcryptfsWriter::fileKey(1), std::nullopt);
        const QString sentry = fx.addEvent("EncryptedClips/SentryClips", "2026-07-21_02-11-05", sealedJson);
        fx.addClip(sentry, "2026-07-21_02-10-05", "front", 300000);
        fx.addClip(sentry, "2026-07-21_02-10-05", "back", 0);
        fx.addClip(sentry, "2026-07-21_02-10-05", "fisheye", 1000);
        TeslaCamFixture::writeFile(sentry + "/notes.txt", "x");
        const QString saved = fx.addEvent("EncryptedClips/SavedClips", "2026-07-22_08-00-00", sealedJson);
        fx.addClip(saved, "2026-07-22_07-59-00", "left_repeater");
        for (const char *minute : {"2026-07-23_12-00-00", "2026-07-23_12-01-00", "2026-07-23_12-05-00"})
            fx.addClip(fx.path("EncryptedClips/RecentClips"), minute, "front");
        fx.addRecentClip("2026-07-23_11-00-00", "front"); // a clear drive before encryption came on

        const DriveScan scan = TeslaCamParser::scan(fx.root());
        QVERIFY(scan.encryptedClipsPresent);
        QCOMPARE(idsOf(scan), (QStringList{"recent|recent_2026-07-23_12-05-00 locked", "recent|recent_2026-07-23_12-00-00 locked",
                                   "recent|recent_2026-07-23_11-00-00", "saved|2026-07-22_08-00-00 locked",
                                   "sentry|2026-07-21_02-11-05 locked", "sentry|2026-05-01_10-00-00"}));
        QCOMPARE(issueList(scan), (QStringList{"unknownCameraSuffix 2026-07-21_02-11-05/2026-07-21_02-10-05-fisheye.mp4",
                                               "unknownFile 2026-07-21_02-11-05/notes.txt"}));

        const TeslaEvent *locked = findEvent(scan, "sentry|2026-07-21_02-11-05");
        QVERIFY(locked && locked->encrypted);
        // The time from the folder name; event.json there, and kept with the rest.
        QCOMPARE(std::tuple(locked->timestamp, locked->missingEventJSON, locked->reason.category, locked->clips.size()),
                 std::tuple(local(2026, 7, 21, 2, 11, 5), false, ReasonCategory(ReasonCategory::unknown), size_t(2)));
        QVERIFY(!locked->city && !locked->latitude && !locked->reasonRaw);
        for (const ClipRef &clip : locked->clips)
            QCOMPARE(clip.health, ClipHealth::encrypted);
        QVERIFY(locked->clips[0].url.contains("/EncryptedClips/SentryClips/"));
        QCOMPARE(std::pair(locked->clips[0].fileSize, locked->corruptClipCount()), std::pair(qint64(300000), 0));
        const TeslaEvent *open = findEvent(scan, "sentry|2026-05-01_10-00-00");
        QVERIFY(open && !open->encrypted);
        QCOMPARE(open->clips[0].health, ClipHealth::unknown);

        // Round trip through the scan cache's form keeps the mark.
        QCOMPARE(TeslaEvent::fromJson(locked->toJson()), *locked);
        QCOMPARE(TeslaEvent::fromJson(open->toJson()), *open);
        QVERIFY(!open->toJson().contains("encrypted"));
    }

    // Below the root a file where a folder should be costs that folder only; a FIFO named event.json doesn't block.
    void oddEntriesCostOnlyThemselves()
    {
        QTemporaryDir tmp;
        TeslaCamFixture fx(tmp.path() + "/TeslaCam");
        TeslaCamFixture::writeFile(fx.path("SavedClips"), "not a folder");
        const QString e = fx.addEventFolder("SentryClips", "2024-01-01_00-00-00");
        QCOMPARE(::mkfifo(QFile::encodeName(e + "/event.json").constData(), 0600), 0);
        const DriveScan scan = TeslaCamParser::scan(fx.root());
        QCOMPARE(scan.events.size(), size_t(1));
        QCOMPARE(issueList(scan),
                 (QStringList{"badEventJSON 2024-01-01_00-00-00/event.json", "unreadableFolder TeslaCam/SavedClips"}));
        QCOMPARE(scan.issues[1].path, fx.path("SavedClips"));
    }

    void unreadableTopFolder_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("lookupsToo");
        for (const char *folder : {"SentryClips", "SavedClips", "RecentClips"}) {
            QTest::addRow("%s refused", folder) << QString::fromLatin1(folder) << EACCES << false;
            QTest::addRow("%s failing", folder) << QString::fromLatin1(folder) << EIO << false;
            QTest::addRow("%s unreachable", folder) << QString::fromLatin1(folder) << EIO << true;
        }
    }

    void unreadableTopFolder()
    {
        QFETCH(QString, folder);
        QFETCH(int, error);
        QFETCH(bool, lookupsToo);
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const QByteArray clip(1000, 'x');
        fs.addFile("TeslaCam/SentryClips/2024-06-01_15-05-00/2024-06-01_15-04-00-front.mp4", clip);
        fs.addFile("TeslaCam/SavedClips/2024-06-02_09-00-00/2024-06-02_08-59-00-front.mp4", clip);
        fs.addFile("TeslaCam/RecentClips/2024-06-03_08-00-00-front.mp4", clip);
        fs.failFolder("TeslaCam/" + folder, error, lookupsToo);
        const QString root = mountPoint.filePath("TeslaCam");

        // A refusal stops the scan; a failing drive costs the folder only.
        if (error == EACCES) {
            QVERIFY_THROWS_EXCEPTION(TeslaCamParser::ScanError, TeslaCamParser::scan(root));
            return;
        }
        const DriveScan scan = TeslaCamParser::scan(root);
        QCOMPARE(issueList(scan), QStringList{"unreadableFolder TeslaCam/" + folder});
        QCOMPARE(scan.issues[0].path, root + "/" + folder);
        QStringList kinds;
        for (const auto &e : scan.events)
            kinds << e.kind.rawValue();
        kinds.sort();
        QStringList expected{"recent", "saved", "sentry"};
        expected.removeOne(folder == "SentryClips" ? "sentry" : folder == "SavedClips" ? "saved" : "recent");
        QCOMPARE(kinds, expected);
    }

    void clipNameAndTimestampRules()
    {
        QCOMPARE(ClipNames::parseTimestamp(u"2024-02-30", u"10-00-00"),
                 std::optional<Date>(local(2024, 3, 1, 10, 0, 0))); // lenient, like a calendar
        QCOMPARE(ClipNames::parseTimestamp(u"2024--06--01", u"10-00-00"),
                 std::optional<Date>(local(2024, 6, 1, 10, 0, 0))); // empty parts dropped
        QVERIFY(!ClipNames::parseTimestamp(u"2024-06", u"10-00-00"));
        QVERIFY(!ClipNames::parseTimestamp(u"2024-06-01-02", u"10-00-00"));
        QVERIFY(!ClipNames::parseTimestamp(u"2024-06-01", u"10-00-xx"));
        // Summer time in Berlin: 2024-07-01 12:00 local is 10:00 UTC.
        QCOMPARE(ClipNames::parseTimestamp(u"2024-07-01", u"12-00-00")->unixSeconds(), 1719828000.0);
        QCOMPARE(ClipNames::parseTimestamp(u"2024-01-01", u"12-00-00")->unixSeconds(), 1704106800.0);

        QVERIFY(ClipNames::matchFolderName(u"2026-07-21_02-11-05"));
        for (const char16_t *name : {u"2026-07-21_02-11-05x", u"x2026-07-21_02-11-05", u"2026-7-21_02-11-05"})
            QVERIFY2(!ClipNames::matchFolderName(name), qPrintable(QString::fromUtf16(name)));
        const auto clip = ClipNames::matchClipFilename(u"2026-07-21_02-11-05-left_b_pillar.mp4");
        QVERIFY(clip);
        QCOMPARE(QStringList({clip->date, clip->time, clip->suffix}),
                 QStringList({"2026-07-21", "02-11-05", "left_b_pillar"}));
        for (const char16_t *name : {u"2026-07-21_02-11-05-.mp4", u"2026-07-21_02-11-05-Front.mp4",
                                     u"2026-07-21_02-11-05-front.mp4.part", u"2026-07-21_02-11-05-front2.mp4"})
            QVERIFY2(!ClipNames::matchClipFilename(name), qPrintable(QString::fromUtf16(name)));
        // \d is any decimal digit: such a name matches but yields no time.
        QVERIFY(ClipNames::matchFolderName(u"\u0662\u0660\u0662\u0664-07-21_02-11-05"));
        QVERIFY(!ClipNames::parseTimestamp(u"\u0662\u0660\u0662\u0664-07-21", u"02-11-05"));
    }

    // The temporary folder and a tmpfs below /media: the health command's
    // reportsTheDriveWithoutAVaultAndItsFormat.
    void computersOwnDiskOrAPluggedInDrive()
    {
        if (::geteuid() != 0)
            QSKIP("needs root to mount drives");
        // Elsewhere a tmpfs is the computer's own, as a sandbox's is.
        QTemporaryDir tmp;
        const TmpfsMount own(tmp.path(), QStringLiteral("own-XXXXXX"));
        QVERIFY(own.ok());
        QVERIFY(TeslaCamParser::scan(TeslaCamFixture(own.path() + "/TeslaCam").root()).onSystemDisk);
        // A car's exFAT drive is never the computer's, wherever it is mounted.
        KEELHOLD_FAULTY_FS(exfat, mountPoint);
        exfat.addFile("TeslaCam/RecentClips/2024-06-03_08-00-00-front.mp4", QByteArray(1000, 'x'));
        QVERIFY(!TeslaCamParser::scan(mountPoint.filePath("TeslaCam")).onSystemDisk);
    }
};

QTEST_GUILESS_MAIN(TeslaCamParserTest)
#include "tst_teslacamparser.moc"
