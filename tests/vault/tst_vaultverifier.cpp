#include "support/DriveBuilder.h"
#include "vault/ArchiveEngine.h"
#include "vault/VaultIndex.h"
#include "vault/VaultVerifier.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestVaultVerifier : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Kept again after a clip changed under the same name: the newest record lists the new bytes; checked once, by it.
    void eachFileIsJudgedByTheNewestRecordThatListsIt()
    {
        QTemporaryDir driveDir;
        DriveBuilder drive(driveDir.filePath("TeslaCam"));
        drive.addEvent("SentryClips", "2026-07-18_09-15-32", 2, 1000);
        QTemporaryDir vault;
        ArchiveEngine::run(ArchiveEngine::plan(drive.scan(), VaultIndex{}), vault.path());
        const QString clip = drive.scan()[0].clips[1].url;
        TeslaCamFixture::writeFile(clip, DriveBuilder::randomBytes(1200, 99));
        const ArchiveReport again =
            ArchiveEngine::run(ArchiveEngine::plan(drive.scan(), VaultIndex::load(vault.path())), vault.path());
        QCOMPARE(again.archivedEvents.size(), size_t(1));
        QCOMPARE(VaultIndex::load(vault.path()).events.size(), size_t(2));

        const VaultVerifier::Result result = VaultVerifier::verify(vault.path());
        QCOMPARE(std::tuple(result.cancelled, result.events.size()), std::tuple(false, size_t(1)));
        QVERIFY2(result.events[0].ok(), qPrintable(result.events[0].changed.join(", ")));
        QCOMPARE(result.events[0].verified, 4);
    }

    // Findings are noted with their date beside the manifest, which stays as it was.
    void findingsAndTheirDatesGoToTheLog()
    {
        QTemporaryDir driveDir;
        DriveBuilder drive(driveDir.filePath("TeslaCam"));
        drive.addEvent("SentryClips", "2026-07-18_09-15-32", 2, 3 << 20);
        drive.addEvent("SentryClips", "2026-07-17_09-15-32", 2, 1000);
        drive.addEvent("SavedClips", "2026-07-16_09-15-32", 1, 1000);
        QTemporaryDir vault;
        const Date started = Date::now();
        const ArchiveReport report = ArchiveEngine::run(ArchiveEngine::plan(drive.scan(), VaultIndex{}), vault.path());
        QCOMPARE(report.completeEvents(), 3);
        // One byte changed in the first event, a file gone from the second; the third cut off by a pulled drive.
        const QString root = vault.path() + QLatin1Char('/');
        const ArchivedEvent &first = report.archivedEvents[0];
        const ArchivedEvent &second = report.archivedEvents[1];
        const QString changedFile = root + first.relativePath + "/" + first.files[1].name;
        QByteArray bytes = DriveBuilder::readQuietly(changedFile);
        bytes[bytes.size() / 2] = char(bytes[bytes.size() / 2] ^ 0x01);
        TeslaCamFixture::writeFile(changedFile, bytes);
        QVERIFY(QFile::remove(root + second.relativePath + "/" + second.files[0].name));
        VaultIndex index = VaultIndex::load(vault.path());
        index.events[2].expectedFileCount = 5;
        index.save(vault.path());
        const QByteArray manifest = DriveBuilder::readQuietly(vault.filePath("manifest.json"));

        // One event asked for: only it is read, and the Vault's date stays unset.
        const auto one = VaultVerifier::verify(vault.path(), {second.eventID});
        QCOMPARE(one.events.size(), size_t(1));
        QCOMPARE(one.events[0].missing, QStringList{second.files[0].name});
        QVERIFY(!VerificationLog::load(vault.path()).wholeVaultCheckedAt);

        std::vector<VaultVerifier::Progress> seen;
        const auto all = VaultVerifier::verify(vault.path(), {}, [&](const VaultVerifier::Progress &p) { seen.push_back(p); });
        QCOMPARE(all.events.size(), size_t(3));
        QCOMPARE(std::tuple(all.events[0].changed, all.events[0].verified, all.events[0].ok()),
                 std::tuple(QStringList{first.files[1].name}, 3, false));
        QCOMPARE(all.events[1].missing, QStringList{second.files[0].name});
        QCOMPARE(std::tuple(all.events[2].incomplete(), all.events[2].verified, all.events[2].ok()),
                 std::tuple(true, 3, false));
        QVERIFY(!seen.empty());
        QCOMPARE(std::pair(seen.back().eventsDone, seen.back().bytesDone), std::pair(3, seen.back().totalBytes));

        const VerificationLog log = VerificationLog::load(vault.path());
        QVERIFY(log.wholeVaultCheckedAt && *log.wholeVaultCheckedAt >= started);
        QCOMPARE(log.events.size(), 3);
        for (const EventCheck &check : all.events)
            QCOMPARE(*log.find(check.eventID), check);
        QCOMPARE(DriveBuilder::readQuietly(vault.filePath("manifest.json")), manifest);
    }

    void stopEndsItWithTheEventsFinished()
    {
        QTemporaryDir driveDir;
        DriveBuilder drive(driveDir.filePath("TeslaCam"));
        drive.addEvent("SentryClips", "2026-07-18_09-15-32", 1, 1000);
        drive.addEvent("SentryClips", "2026-07-17_09-15-32", 2, 4 << 20);
        QTemporaryDir vault;
        ArchiveEngine::run(ArchiveEngine::plan(drive.scan(), VaultIndex{}), vault.path());
        std::stop_source stop;
        // Stopped inside the second event's first clip.
        const auto result = VaultVerifier::verify(
            vault.path(), {},
            [&](const VaultVerifier::Progress &p) {
                if (p.eventsDone == 1 && p.bytesDone > p.totalBytes / 4)
                    stop.request_stop();
            },
            stop.get_token());
        const VerificationLog log = VerificationLog::load(vault.path());
        QCOMPARE(std::tuple(result.cancelled, result.events.size(), log.events.size(), log.wholeVaultCheckedAt.has_value()),
                 std::tuple(true, size_t(1), qsizetype(1), false));
    }
};

QTEST_GUILESS_MAIN(TestVaultVerifier)
#include "tst_vaultverifier.moc"
