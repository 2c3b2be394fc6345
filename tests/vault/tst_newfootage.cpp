#include "drive/TeslaCamParser.h"
#include "support/IsolatedHome.h"
#include "vault/KeepSummary.h"
#include "vault/NewFootage.h"

#include <QTest>

namespace {

const Date start = Date::fromUnixSeconds(1784000000);

ClipRef clip(const QString &folder, int minute, Camera camera = Camera::front, qint64 size = 1000)
{
    const QString name = QStringLiteral("2026-07-13_10-%1-00-%2.mp4").arg(minute, 2, 10, QLatin1Char('0')).arg(camera.rawValue());
    return {folder + QLatin1Char('/') + name, camera, start.addingTimeInterval(60.0 * minute), size, 60.0,
            ClipHealth::ok};
}

TeslaEvent sentry(const QString &name, std::vector<ClipRef> clips)
{
    TeslaEvent e;
    e.kind = EventKind::sentry;
    e.folderName = name;
    e.folderURL = QStringLiteral("/media/CAR/TeslaCam/SentryClips/") + name;
    e.timestamp = clips.front().startDate;
    e.clips = std::move(clips);
    return e;
}

ArchivedEvent record(const TeslaEvent &e, std::vector<ClipRef> held)
{
    ArchivedEvent a;
    a.eventID = e.id();
    a.kind = e.kind;
    a.folderName = e.folderName;
    for (const ClipRef &c : held)
        a.files.push_back({c.fileName(), c.fileSize, QStringLiteral("00")});
    return a;
}

std::vector<QString> ids(const std::vector<TeslaEvent> &events)
{
    std::vector<QString> out;
    for (const TeslaEvent &e : events)
        out.push_back(e.id());
    return out;
}

} // namespace

class TestNewFootage : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Sentry and saved events: new until the Vault's newest record holds every clip at the same size.
    void eventsAreJudgedByTheirFiles()
    {
        const QString f = QStringLiteral("/media/CAR/TeslaCam/SentryClips/a");
        const TeslaEvent whole = sentry(QStringLiteral("a"), {clip(f, 1), clip(f, 2)});
        const TeslaEvent partlyKept = sentry(QStringLiteral("b"), {clip(f, 3), clip(f, 4)});
        const TeslaEvent grown = sentry(QStringLiteral("c"), {clip(f, 5), clip(f, 6, Camera::front, 2000)});
        const TeslaEvent unseen = sentry(QStringLiteral("d"), {clip(f, 7)});
        VaultIndex vault;
        vault.events = {record(whole, whole.clips), record(partlyKept, {partlyKept.clips[0]}),
                        record(grown, {clip(f, 5), clip(f, 6)})};
        QCOMPARE(ids(NewFootage::unkept({whole, partlyKept, grown, unseen}, vault, false)),
                 (std::vector<QString>{partlyKept.id(), grown.id(), unseen.id()}));

        // A later, shorter record of the same event is what the Vault holds now.
        vault.events.push_back(record(whole, {whole.clips[0]}));
        QCOMPARE(ids(NewFootage::unkept({whole}, vault, false)), std::vector<QString>{whole.id()});
    }

    // Recent driving rolls: back under a new id, oldest minutes gone; only new minutes are taken, as drives, if asked.
    void recentDrivingTakesOnlyNewMinutes()
    {
        const QString folder = QStringLiteral("/media/CAR/TeslaCam/RecentClips");
        std::vector<ClipRef> firstLook;
        for (int m = 0; m < 4; ++m)
            for (Camera c : {Camera::front, Camera::back})
                firstLook.push_back(clip(folder, m, c));
        const TeslaEvent kept = TeslaCamParser::groupIntoRecentEvents(firstLook, folder, 150).front();
        VaultIndex vault;
        vault.events = {record(kept, kept.clips)};

        std::vector<ClipRef> later;
        for (int m = 2; m < 7; ++m)
            for (Camera c : {Camera::front, Camera::back})
                later.push_back(clip(folder, m, c));
        const TeslaEvent rolled = TeslaCamParser::groupIntoRecentEvents(later, folder, 150).front();
        QVERIFY(rolled.id() != kept.id());

        QVERIFY(NewFootage::unkept({rolled}, vault, false).empty());
        const std::vector<TeslaEvent> fresh = NewFootage::unkept({rolled}, vault, true);
        QCOMPARE(fresh.size(), size_t(1));
        QCOMPARE(fresh[0].clips.size(), size_t(6));
        QCOMPARE(fresh[0].timestamp, start.addingTimeInterval(4 * 60.0));
        QVERIFY(fresh[0].folderName.startsWith(QStringLiteral("recent_")));
        // Kept, it is judged held the next time.
        vault.events.push_back(record(fresh[0], fresh[0].clips));
        QVERIFY(NewFootage::unkept({rolled}, vault, true).empty());
    }

    // Told as kept, full or nothing new in the watch's and auto-keep's tests; a pulled drive only here.
    void aKeepCutOffByAPulledDriveSaysSo()
    {
        ArchiveReport report;
        report.plannedEvents = 3;
        report.stoppedBecause = ArchiveReport::StopReason::driveDisconnected;
        QVERIFY(KeepSummary::of(report, QStringLiteral("TESLADRIVE")).sentence.startsWith(
            QStringLiteral("TESLADRIVE was disconnected")));
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestNewFootage)
#include "tst_newfootage.moc"
