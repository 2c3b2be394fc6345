#include "support/DriveBuilder.h"
#include "vault/ArchiveEngine.h"
#include "vault/VaultBrowser.h"
#include "vault/VaultIndex.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestVaultBrowser : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void missingOrNonFolderVaultRaises()
    {
        QTemporaryDir dir;
        TeslaCamFixture::writeFile(dir.filePath("file"), "x");
        QVERIFY_THROWS_EXCEPTION(VaultBrowser::VaultBrowserError, VaultBrowser::scanVault(dir.filePath("file")));
        QVERIFY_THROWS_EXCEPTION(VaultBrowser::VaultBrowserError, VaultBrowser::scanVault(dir.filePath("gone")));
        QVERIFY(VaultBrowser::scanVault(dir.path()).empty());
    }

    void keptEventsReadBackLikeTheDrive()
    {
        QTemporaryDir driveDir;
        DriveBuilder drive(driveDir.filePath("TeslaCam"));
        drive.addEvent("SentryClips", "2026-07-18_09-15-32", 3, 100);
        drive.addEvent("SavedClips", "2026-07-19_10-00-00", 2, 100);
        drive.addEvent("SentryClips", "2025-12-31_23-59-00", 1, 100);
        const auto events = drive.scan();
        QTemporaryDir vault;
        ArchiveEngine::run(ArchiveEngine::plan(events, VaultIndex{}), vault.path());

        const auto kept = VaultBrowser::scanVault(vault.path());
        QCOMPARE(kept.size(), events.size());
        for (size_t i = 0; i < kept.size(); ++i) {
            // Same identity, order, metadata and clips, now inside the Vault.
            QCOMPARE(std::tuple(kept[i].id(), kept[i].timestamp, kept[i].city, kept[i].reason),
                     std::tuple(events[i].id(), events[i].timestamp, events[i].city, events[i].reason));
            QVERIFY(kept[i].folderURL.startsWith(vault.path()));
            QVERIFY(kept[i].thumbURL && kept[i].thumbURL->startsWith(vault.path()));
            QCOMPARE(kept[i].clips.size(), events[i].clips.size());
            for (size_t c = 0; c < kept[i].clips.size(); ++c) {
                QVERIFY(kept[i].clips[c].url.startsWith(vault.path()));
                QCOMPARE(std::pair(kept[i].clips[c].camera, kept[i].clips[c].startDate),
                         std::pair(events[i].clips[c].camera, events[i].clips[c].startDate));
            }
        }
    }

    void theFoldersAreTheTruthNotTheIndex()
    {
        QTemporaryDir driveDir;
        DriveBuilder drive(driveDir.filePath("TeslaCam"));
        drive.addEvent("SentryClips", "2026-07-18_09-15-32", 2, 100);
        QTemporaryDir vault;
        ArchiveEngine::run(ArchiveEngine::plan(drive.scan(), VaultIndex{}), vault.path());
        // A folder that no record knows is still an event; any year folder name is walked.
        const QByteArray clip = DriveBuilder::readQuietly(drive.scan()[0].clips[0].url);
        TeslaCamFixture::writeFile(vault.filePath("someyear/saved/2026-07-20_08-00-00/2026-07-20_07-59-00-front.mp4"), clip);
        // A record whose folder is gone is not.
        VaultIndex index = VaultIndex::load(vault.path());
        ArchivedEvent ghost = index.events.at(0);
        ghost.eventID = QStringLiteral("sentry|2026-07-01_00-00-00");
        ghost.folderName = QStringLiteral("2026-07-01_00-00-00");
        ghost.relativePath = QStringLiteral("2026/sentry/2026-07-01_00-00-00");
        index.events.push_back(ghost);
        index.save(vault.path());

        // Passed over: unknown kinds, names off the pattern, hidden leftovers.
        TeslaCamFixture::writeFile(vault.filePath("2024/other/2024-01-01_00-00-00/2024-01-01_00-00-00-front.mp4"), clip);
        TeslaCamFixture::writeFile(vault.filePath("2026/sentry/not-an-event/2026-07-18_09-14-32-front.mp4"), clip);
        const QString keptFolder = vault.filePath("2026/sentry/2026-07-18_09-15-32");
        TeslaCamFixture::writeFile(keptFolder + "/.tmp-ABC-2026-07-18_09-13-32-back.mp4", "partial");
        // A keep cut off before any file of an event arrived: nothing kept, nothing shown.
        TeslaCamFixture::writeFile(vault.filePath("2026/saved/2026-07-02_00-00-00/.tmp-DEF-2026-07-01_23-59-00-front.mp4"),
                                   "partial");

        for (int pass = 0; pass < 2; ++pass) {
            const auto kept = VaultBrowser::scanVault(vault.path());
            QCOMPARE(kept.size(), size_t(2));
            QCOMPARE(std::tuple(kept[0].id(), kept[1].id(), kept[1].clips.size()),
                     std::tuple(QStringLiteral("saved|2026-07-20_08-00-00"), QStringLiteral("sentry|2026-07-18_09-15-32"),
                                size_t(2)));
            // An unreadable index hides nothing either.
            TeslaCamFixture::writeFile(vault.filePath("manifest.json"), "garbage");
        }
    }

    void keptRecentDrivingIsARecentDrive()
    {
        QTemporaryDir vault;
        const QString folder = vault.filePath("2026/recent/2026-07-18_09-10-00");
        for (const char *name : {"2026-07-18_09-12-00-front.mp4", "2026-07-18_09-10-00-back.mp4",
                                 "2026-07-18_09-10-00-front.mp4", "2026-07-18_09-11-00-front.mp4"})
            TeslaCamFixture::writeFile(folder + "/" + name, "data");
        // Even with an event.json of its own, a recent drive has no reason text.
        TeslaCamFixture::writeFile(folder + "/event.json",
                                   TeslaCamFixture::eventJson("2026-07-18T09:10:00", "user_interaction_honk"));
        QDir().mkpath(vault.filePath("2026/recent/empty-folder"));

        const auto kept = VaultBrowser::scanVault(vault.path());
        QCOMPARE(kept.size(), size_t(1));
        const TeslaEvent &e = kept[0];
        QCOMPARE(std::tuple(e.id(), e.reason.category, e.clips.size()),
                 std::tuple(QStringLiteral("recent|2026-07-18_09-10-00"), ReasonCategory(ReasonCategory::recentDrive),
                            size_t(4)));
        QVERIFY(!e.reason.raw && !e.reasonRaw && !e.city && !e.thumbURL && e.missingEventJSON);
        QCOMPARE(e.timestamp, e.clips.front().startDate);
        for (size_t i = 1; i < e.clips.size(); ++i)
            QVERIFY(e.clips[i - 1].startDate <= e.clips[i].startDate);
        QCOMPARE(e.clips[0].camera, Camera(Camera::front)); // grid order within a minute
    }
};

QTEST_GUILESS_MAIN(TestVaultBrowser)
#include "tst_vaultbrowser.moc"
