// The health report: counts, fullness thresholds, texts and their order.

#include "support/IsolatedHome.h"
#include "health/HealthComputer.h"
#include "model/ArchivedEvent.h"

#include <QTest>

namespace {

ClipRef clip(ClipHealth health, Camera camera = Camera::front)
{
    ClipRef c;
    c.url = QStringLiteral("/drive/TeslaCam/SentryClips/x/clip-%1.mp4").arg(int(camera.value()));
    c.camera = camera;
    c.fileSize = 30000000;
    c.health = health;
    return c;
}

TeslaEvent teslaEvent(const QString &folder, std::vector<ClipRef> clips = {}, EventKind kind = EventKind::sentry)
{
    TeslaEvent e;
    e.kind = kind;
    e.folderName = folder;
    e.folderURL = QStringLiteral("/drive/TeslaCam/SentryClips/") + folder;
    e.timestamp = Date(700000000.0);
    e.clips = std::move(clips);
    return e;
}

DriveScan scan(std::vector<TeslaEvent> events = {}, VolumeFormat format = VolumeFormat::exFAT,
               std::optional<qint64> capacity = std::nullopt, std::optional<qint64> free = std::nullopt)
{
    DriveScan s;
    s.teslaCamURL = QStringLiteral("/drive/TeslaCam");
    s.volumeName = QStringLiteral("TESLA");
    s.format = format;
    s.capacityBytes = capacity;
    s.freeBytes = free;
    s.events = std::move(events);
    return s;
}

// A drive with the given used fraction, 10,000 bytes large.
DriveScan filled(qint64 usedOutOfTenThousand)
{
    return scan({}, VolumeFormat::exFAT, qint64(10000), qint64(10000 - usedOutOfTenThousand));
}

QStringList ids(const HealthReport &r)
{
    QStringList out;
    for (const auto &rec : r.recommendations)
        out << rec.id;
    return out;
}

ArchivedEvent record(const TeslaEvent &e, std::vector<ArchivedFile> files)
{
    ArchivedEvent a;
    a.eventID = e.id();
    a.kind = e.kind;
    a.folderName = e.folderName;
    a.timestamp = e.timestamp;
    a.files = std::move(files);
    a.archivedAt = Date(710000000.0);
    a.sourceVolume = QStringLiteral("ANOTHER NAME");
    a.relativePath = QStringLiteral("2023/sentry/") + e.folderName;
    return a;
}

} // namespace

class TestHealthComputer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void emptyDriveIsAllGoodAndFullnessNeedsItsFigures()
    {
        const HealthReport r = HealthComputer::compute(scan(), VaultIndex());
        QVERIFY(!r.fullnessFraction.has_value());
        QCOMPARE(std::tuple(r.corruptClipCount, r.probedClipCount, r.unarchivedEventCount, r.encryptedClipsPresent),
                 std::tuple(0, 0, 0, false));
        QCOMPARE(ids(r), QStringList{QStringLiteral("all-good")});

        // Encrypted footage replaces "all-good", as anything else said does.
        DriveScan s = scan();
        s.encryptedClipsPresent = true;
        const HealthReport encrypted = HealthComputer::compute(s, {});
        QCOMPARE(std::pair(encrypted.encryptedClipsPresent, ids(encrypted)), std::pair(true, QStringList{"encrypted"}));

        // Fullness needs both figures and a capacity.
        QVERIFY(!HealthComputer::compute(scan({}, VolumeFormat::exFAT, qint64(0), qint64(0)), {}).fullnessFraction);
        QVERIFY(!HealthComputer::compute(scan({}, VolumeFormat::exFAT, qint64(100), std::nullopt), {}).fullnessFraction);
        QVERIFY(!HealthComputer::compute(scan({}, VolumeFormat::exFAT, std::nullopt, qint64(5)), {}).fullnessFraction);
        QCOMPARE(HealthComputer::compute(scan({}, VolumeFormat::exFAT, qint64(400), qint64(100)), {}).fullnessFraction,
                 std::optional<double>(0.75));
    }
    void fullnessThresholdsUseTheUnroundedFraction_data()
    {
        QTest::addColumn<qint64>("used");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("title");
        QTest::newRow("0.8504 is full") << qint64(8504) << "drive-full" << "85% full \u2014 normal for a Tesla drive";
        QTest::newRow("0.85 is filling") << qint64(8500) << "drive-filling" << "Drive is 85% full";
        QTest::newRow("0.6001 is filling") << qint64(6001) << "drive-filling" << "Drive is 60% full";
        QTest::newRow("0.6 says nothing") << qint64(6000) << "all-good" << "Everything looks good";
        QTest::newRow("0.9950 rounds up") << qint64(9950) << "drive-full" << "100% full \u2014 normal for a Tesla drive";
        QTest::newRow("0.6250 rounds half up") << qint64(6250) << "drive-filling" << "Drive is 63% full";
        QTest::newRow("0.8449 rounds down") << qint64(8449) << "drive-filling" << "Drive is 84% full";
    }
    void fullnessThresholdsUseTheUnroundedFraction()
    {
        QFETCH(qint64, used);
        QFETCH(QString, id);
        QFETCH(QString, title);
        const HealthReport r = HealthComputer::compute(filled(used), {});
        QCOMPARE(std::pair(ids(r), r.recommendations.front().title), std::pair(QStringList{id}, title));
    }
    void damagedClipTitlesAndSeverities_data()
    {
        QTest::addColumn<int>("damaged");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("severity");
        QTest::newRow("1") << 1 << "some-corrupt" << "1 clip didn't record properly" << int(Recommendation::Severity::info);
        QTest::newRow("4") << 4 << "some-corrupt" << "4 clips didn't record properly" << int(Recommendation::Severity::info);
        QTest::newRow("5") << 5 << "many-corrupt" << "5 clips didn't record properly"
                           << int(Recommendation::Severity::warning);
    }
    void damagedClipTitlesAndSeverities()
    {
        QFETCH(int, damaged);
        QFETCH(QString, id);
        QFETCH(QString, title);
        QFETCH(int, severity);
        const std::vector<ClipRef> clips(size_t(damaged), clip(ClipHealth::truncated));
        // Events recorded in the Vault without files, so only the clips speak.
        const TeslaEvent e = teslaEvent("2024-01-01_10-00-00", clips);
        VaultIndex vault;
        vault.events.push_back(record(e, {}));
        const HealthReport r = HealthComputer::compute(scan({e}), vault);
        const Recommendation &first = r.recommendations.front();
        QCOMPARE(std::tuple(r.unarchivedEventCount, ids(r), first.title, int(first.severity)),
                 std::tuple(0, QStringList{id}, title, severity));
    }
    void probedAndCorruptCounts()
    {
        const TeslaEvent e = teslaEvent("2024-01-01_10-00-00",
                                   {clip(ClipHealth::unknown), clip(ClipHealth::ok), clip(ClipHealth::encrypted),
                                    clip(ClipHealth::timedOut), clip(ClipHealth::zeroByte), clip(ClipHealth::unreadable)});
        const HealthReport r = HealthComputer::compute(scan({e, teslaEvent("2024-01-02_10-00-00", {clip(ClipHealth::truncated)})}), {});
        // Encrypted counts as probed but not as damage; timed out counts as
        // both; the unprobed one is neither.
        QCOMPARE(std::pair(r.probedClipCount, r.corruptClipCount), std::pair(6, 4));
    }
    void warningsComeFirstAndTableOrderHolds()
    {
        std::vector<ClipRef> clips(6, clip(ClipHealth::unreadable));
        DriveScan s = scan({teslaEvent("2024-01-01_10-00-00", clips)}, VolumeFormat::exFAT, qint64(1000), qint64(300));
        s.encryptedClipsPresent = true;
        const HealthReport typical = HealthComputer::compute(s, {});
        QCOMPARE(ids(typical), (QStringList{"backup-new", "many-corrupt", "drive-filling", "encrypted"}));

        s.freeBytes = 100; // 90 % full: an info item, after the warnings, before "encrypted"
        s.events.front().clips = {clip(ClipHealth::zeroByte)};
        const HealthReport r = HealthComputer::compute(s, {});
        QCOMPARE(ids(r), (QStringList{"backup-new", "drive-full", "some-corrupt", "encrypted"}));
    }
    void vaultMatchesOnlyRecordsWithoutFiles()
    {
        const TeslaEvent a = teslaEvent("2024-01-01_10-00-00", {clip(ClipHealth::ok)});
        const TeslaEvent b = teslaEvent("2024-01-02_10-00-00", {clip(ClipHealth::ok)}, EventKind::saved);
        // Both really kept, with their files: they still count as unarchived.
        VaultIndex vault;
        vault.events.push_back(record(a, {ArchivedFile{QStringLiteral("clip-0.mp4"), 30000000, QString(64, '0')}}));
        vault.events.push_back(record(b, {ArchivedFile{QStringLiteral("clip-0.mp4"), 30000000, QString(64, '0')}}));
        const HealthReport both = HealthComputer::compute(scan({a, b}), vault);
        QCOMPARE(std::tuple(both.unarchivedEventCount, ids(both), both.recommendations.front().title),
                 std::tuple(2, QStringList{"backup-new"}, QStringLiteral("Back up 2 new events")));
        // A record without files matches, whatever its volume or dates say.
        vault.events.push_back(record(b, {}));
        const HealthReport r = HealthComputer::compute(scan({a, b}), vault);
        QCOMPARE(std::pair(r.unarchivedEventCount, r.recommendations.front().title),
                 std::pair(1, QStringLiteral("Back up 1 new event")));
        // The kind takes part in the match.
        TeslaEvent sameFolderOtherKind = b;
        sameFolderOtherKind.kind = EventKind::sentry;
        QCOMPARE(HealthComputer::compute(scan({sameFolderOtherKind}), vault).unarchivedEventCount, 1);
    }
    // Which advice each drive gets (a real tmpfs drive and the computer's own
    // disk are judged through the command line's health suite).
    void formatVerdicts()
    {
        const auto verdict = [](const VolumeFormat &f) { return HealthComputer::formatVerdict(f); };
        QVERIFY(HealthComputer::compute(scan({}, VolumeFormat::exFAT), {}).formatVerdict.endsWith("No action needed."));
        QVERIFY(verdict(VolumeFormat::fat32).contains("prefers exFAT for drives over 32 GB"));
        // The car records to ext3 and ext4; the computer's other file systems it can't.
        QVERIFY(verdict(VolumeFormat::makeOther("ext4")).contains("formatted ext4, which your car can record to."));
        QVERIFY(verdict(VolumeFormat::makeOther("ext2")).contains("formatted ext2, which your car cannot record to."));
        QVERIFY(verdict(VolumeFormat::apfs).contains("cannot record to"));
        QVERIFY(verdict(VolumeFormat::makeOther("ntfs")).contains("may not fully support"));
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestHealthComputer)
#include "tst_healthcomputer.moc"
