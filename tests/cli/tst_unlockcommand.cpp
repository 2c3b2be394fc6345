#include "crypt/KeyStore.h"
#include "support/CliRun.h"
#include "support/DriveBuilder.h"
#include "support/EncryptedDrive.h"
#include "support/IsolatedHome.h"
#include "support/KeyServiceStandIn.h"
#include "support/MovieFacts.h"
#include "support/SecretStoreSession.h"
#include "support/TestClips.h"
#include "support/TreeSnapshot.h"
#include "unlock/KeyService.h"
#include "vault/VaultIndex.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

// The command line on encrypted footage: scan and keep treat it like any other, unlock checks and stores the sign-in,
// decrypt writes plain movies; keys come from a stand-in service, are kept, and are found again offline.
namespace {
const QByteArray token = QByteArrayLiteral("cli-stand-in-token-5e2a91");

QProcessEnvironment withoutSecretStore()
{
    // No session bus and no display: nowhere a secret store could be found or started.
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    env.remove(QStringLiteral("DISPLAY"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    return env;
}

CliRun::Result cli(const QStringList &arguments)
{
    return CliRun::run(arguments, withoutSecretStore());
}

constexpr auto readAll = &DriveBuilder::readQuietly;

int lineCount(const QString &text)
{
    return int(text.trimmed().split(QLatin1Char('\n'), Qt::SkipEmptyParts).size());
}
} // namespace

class TestUnlockCommand : public QObject {
    Q_OBJECT

    QString home_;
    QTemporaryDir dir_;
    KeyServiceStandIn service_;
    QString plain_;
    std::unique_ptr<EncryptedDrive> drive_;
    QString tokenFile_;

private Q_SLOTS:
    void initTestCase()
    {
        home_ = QDir::homePath();
        service_.setAcceptedToken(token);
        QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).setValue(KeyService::settingsKey, service_.baseURL());
        plain_ = dir_.filePath(QStringLiteral("plain.mp4"));
        QVERIFY(QFile::copy(TestClips::clip(), plain_));
        TestClips::padTo(plain_);
        drive_ = std::make_unique<EncryptedDrive>(dir_.filePath(QStringLiteral("drive/TeslaCam")), plain_, &service_);
        tokenFile_ = dir_.filePath(QStringLiteral("token.txt"));
        TeslaCamFixture::writeFile(tokenFile_, "  Bearer " + token + "\n");
    }

    void scanListsEncryptedEventsAndTheirClips()
    {
        const auto r = cli({"scan", drive_->root(), "--probe"});
        QCOMPARE(r.exitCode, 0);
        const QJsonArray events = QJsonDocument::fromJson(r.out).object().value("events").toArray();
        QMap<QString, QJsonObject> byID;
        for (const QJsonValue &v : events)
            byID.insert(v[QStringLiteral("kind")].toString() + "|" + v[QStringLiteral("folderName")].toString(), v.toObject());
        QCOMPARE(byID.size(), 5);
        for (const QString &id : {EncryptedDrive::sentryID, EncryptedDrive::savedID, EncryptedDrive::recentID}) {
            QVERIFY2(byID[id][QStringLiteral("encrypted")].toBool(), qPrintable(id));
            for (const QJsonValue &clip : byID[id][QStringLiteral("clips")].toArray())
                QCOMPARE(clip[QStringLiteral("health")].toString(), QStringLiteral("encrypted"));
        }
        QCOMPARE(byID[EncryptedDrive::sentryID][QStringLiteral("clips")].toArray().size(), 4);
        QVERIFY(!byID[EncryptedDrive::clearID].contains("encrypted"));
        QCOMPARE(byID[EncryptedDrive::clearID][QStringLiteral("clips")].toArray()[0][QStringLiteral("health")].toString(), QStringLiteral("ok"));
        QVERIFY(QJsonDocument::fromJson(r.out).object().value("issues").toArray().isEmpty());
    }

    // Kept byte for byte, flagged in the manifest, verified again; with no key known nothing is written beside them.
    void keepAndVerifyEncryptedEvents()
    {
        const QString vault = dir_.filePath(QStringLiteral("vault1"));
        const auto kept = cli({"keep", drive_->root(), "--vault", vault});
        QCOMPARE(kept.exitCode, 0);
        const VaultIndex index = VaultIndex::load(vault);
        QCOMPARE(index.events.size(), size_t(5));
        for (const ArchivedEvent &e : index.events) {
            const bool sealed = e.eventID != EncryptedDrive::clearID && e.eventID != EncryptedDrive::clearRecentID;
            QCOMPARE(e.encrypted, sealed);
            QVERIFY(!QFile::exists(vault + "/" + e.relativePath + "/" + VaultKeys::fileName));
            if (e.eventID == EncryptedDrive::sentryID) // four clips, event.json and the thumbnail
                QCOMPARE(e.files.size(), size_t(6));
        }
        QCOMPARE(cli({"vault", "verify", vault}).exitCode, 0);
        const QJsonArray listed = QJsonDocument::fromJson(cli({"vault", "list", vault}).out).array();
        QCOMPARE(std::count_if(listed.begin(), listed.end(),
                               [](const QJsonValue &e) { return e[QStringLiteral("encrypted")].toBool(); }),
                 3);
    }

    void unlockChecksTheTokenAndSaysItCantRemember()
    {
        service_.clearRequests();
        const auto accepted = cli({"unlock", "--token-file", tokenFile_});
        QCOMPARE(accepted.exitCode, 0);
        QVERIFY(accepted.err.contains("no secret store"));
        QCOMPARE(service_.requests().size(), size_t(1));
        QVERIFY(service_.requests()[0].authorised);
        QCOMPARE(service_.requests()[0].items, 0);

        QProcess pipe;
        pipe.setProcessEnvironment(withoutSecretStore());
        pipe.start(QStringLiteral(KEELHOLD_CLI_PATH), {"unlock", "--token-file", "-"});
        pipe.write(token + "\n");
        pipe.closeWriteChannel();
        const auto piped = CliRun::finish(pipe);
        QCOMPARE(piped.exitCode, 0);

        const QString stale = dir_.filePath(QStringLiteral("stale.txt"));
        TeslaCamFixture::writeFile(stale, "an-expired-token");
        const auto refused = cli({"unlock", "--token-file", stale});
        QCOMPARE(refused.exitCode, 2);
        QCOMPARE(lineCount(refused.err), 1);

        const auto onTheLine = cli({"unlock", QString::fromLatin1(token)});
        QCOMPARE(onTheLine.exitCode, 64);
        QVERIFY(!onTheLine.err.contains(QString::fromLatin1(token)));
        QCOMPARE(cli({"unlock", "--token-file", dir_.filePath("missing.txt")}).exitCode, 2);
        QCOMPARE(cli({"unlock", "--forget"}).exitCode, 2); // no store to forget in
        for (const auto *r : {&accepted, &piped, &refused})
            QVERIFY(!r->err.contains(QString::fromLatin1(token)) && !r->out.contains(token));
    }

    // The two clips that can never be unlocked are said so, and the run is a partial one.
    void decryptWritesThePlainMovies()
    {
        const TreeSnapshot before = TreeSnapshot::take(drive_->root());
        const QString none = dir_.filePath(QStringLiteral("out0"));
        const auto noToken = cli({"decrypt", drive_->root(), "--event", EncryptedDrive::sentryID, "-o", none});
        QCOMPARE(noToken.exitCode, 2);
        QCOMPARE(lineCount(noToken.err), 1);
        QVERIFY(noToken.err.contains("--token-file"));

        service_.clearRequests();
        const QString out = dir_.filePath(QStringLiteral("out1"));
        const auto r = cli({"decrypt", drive_->root(), "--event", EncryptedDrive::sentryID, "-o", out, "--token-file",
                            tokenFile_});
        QCOMPARE(r.exitCode, 1);
        QVERIFY(r.err.contains(KeyService::sentence(KeyService::Outcome::zeroKeyBlock)));
        QVERIFY(r.err.contains(KeyService::sentence(KeyService::Outcome::damagedHeader)));
        const QStringList written = QDir(out).entryList(QDir::Files, QDir::Name);
        QCOMPARE(written, (QStringList{"2026-07-21_02-10-05-back.mp4", "2026-07-21_02-10-05-front.mp4"}));
        for (const QString &name : written)
            QVERIFY(readAll(out + "/" + name) == readAll(plain_));
        QCOMPARE(service_.requests().size(), size_t(1));
        QCOMPARE(service_.requests()[0].items, 2);
        QCOMPARE(service_.requests()[0].vinOfFirst, QByteArray("5YJ3E1EA7KF000001"));

        // The keys are kept: one camera again, offline and with no token at all.
        service_.setMode(KeyServiceStandIn::Mode::status500);
        const QString again = dir_.filePath(QStringLiteral("out2"));
        const auto offline = cli({"decrypt", drive_->root(), "--event", EncryptedDrive::sentryID, "--camera", "front",
                                  "-o", again});
        service_.setMode(KeyServiceStandIn::Mode::keys);
        QCOMPARE(offline.exitCode, 0);
        QCOMPARE(QDir(again).entryList(QDir::Files), QStringList{"2026-07-21_02-10-05-front.mp4"});
        QCOMPARE(service_.requests().size(), size_t(1));

        QCOMPARE(cli({"decrypt", drive_->root(), "--event", EncryptedDrive::clearID, "-o", again}).exitCode, 2);
        QCOMPARE(cli({"decrypt", drive_->root(), "--event", EncryptedDrive::sentryID, "-o", drive_->root() + "/out"}).exitCode,
                 2);
        QCOMPARE(before.differences(TreeSnapshot::take(drive_->root())), QString());
    }

    // Its keys kept, an encrypted camera exports like a clear one, every picture read through the decrypting reader.
    void exportReadsUnlockedClips()
    {
        const QString movie = dir_.filePath(QStringLiteral("front.mp4"));
        const auto r = cli({"export", drive_->root(), "--event", EncryptedDrive::sentryID, "--camera", "front", "-o",
                            movie});
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        const MovieFacts exported = MovieFacts::read(movie);
        const MovieFacts plain = MovieFacts::read(plain_);
        QVERIFY(exported.firstOf("video"));
        QCOMPARE(std::tuple(exported.firstOf("video")->width, exported.firstOf("video")->decodedFrames,
                            exported.firstOf("video")->decodeErrors),
                 std::tuple(plain.firstOf("video")->width, plain.firstOf("video")->decodedFrames, 0));

        // Still locked without its key, the same camera of another event is no movie.
        const auto locked = cli({"export", drive_->root(), "--event", EncryptedDrive::recentID, "--camera", "front",
                                 "-o", dir_.filePath(QStringLiteral("recent.mp4"))});
        QCOMPARE(locked.exitCode, 2);
        QCOMPARE(lineCount(locked.err), 1);
    }

    // In a desktop's secret store the sign-in is remembered, used without a token file, and forgotten on request.
    void rememberedInARealSecretStore()
    {
        SecretStoreSession store;
        if (!store.ok())
            QSKIP(qPrintable(store.why()));
        const auto remembered = CliRun::run({"unlock", "--token-file", tokenFile_}, store.environment());
        QCOMPARE(remembered.exitCode, 0);
        QVERIFY2(remembered.err.contains("remembered"), qPrintable(remembered.err));

        service_.clearRequests();
        const QString out = dir_.filePath(QStringLiteral("out-saved"));
        const auto used = CliRun::run({"decrypt", drive_->root(), "--event", EncryptedDrive::savedID, "-o", out},
                                      store.environment());
        QCOMPARE(used.exitCode, 0);
        QCOMPARE(service_.requests().size(), size_t(1));
        QVERIFY(service_.requests()[0].authorised);

        QCOMPARE(CliRun::run({"unlock", "--forget"}, store.environment()).exitCode, 0);
        const auto forgotten = CliRun::run({"decrypt", drive_->root(), "--event", EncryptedDrive::recentID, "-o", out},
                                           store.environment());
        QCOMPARE(forgotten.exitCode, 2);
        QVERIFY(forgotten.err.contains("--token-file"));
    }

    // A kept event carries its keys, so the Vault plays on a computer that has never seen them.
    void keptKeysTravelWithTheVault()
    {
        const QString vault = dir_.filePath(QStringLiteral("vault2"));
        QCOMPARE(cli({"keep", drive_->root(), "--vault", vault, "--event", EncryptedDrive::sentryID}).exitCode, 0);
        const VaultIndex index = VaultIndex::load(vault);
        const QString folder = vault + "/" + index.events.at(0).relativePath;
        struct stat st {};
        QCOMPARE(::stat(QFile::encodeName(folder + "/" + VaultKeys::fileName).constData(), &st), 0);
        QCOMPARE(int(st.st_mode & 07777), 0600);
        QCOMPARE(VaultKeys::read(folder).size(), size_t(2));
        QCOMPARE(cli({"vault", "verify", vault}).exitCode, 0); // the hidden file is no record

        // Another computer: a fresh home with no keys, and no service.
        QTemporaryDir otherHome;
        QProcessEnvironment env = withoutSecretStore();
        env.insert("HOME", otherHome.path());
        env.insert("XDG_DATA_HOME", otherHome.filePath(".local/share"));
        env.insert("XDG_CONFIG_HOME", otherHome.filePath(".config"));
        const QString out = dir_.filePath(QStringLiteral("out3"));
        const auto r = CliRun::run({"decrypt", vault, "--event", EncryptedDrive::sentryID, "-o", out}, env);
        QCOMPARE(r.exitCode, 1); // the two that never can
        QCOMPARE(QDir(out).entryList(QDir::Files).size(), 2);
        QVERIFY(readAll(out + "/2026-07-21_02-10-05-back.mp4") == readAll(plain_));
    }

    // Nothing the tool wrote anywhere holds the token.
    void cleanupTestCase()
    {
        QDirIterator it(home_, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            QVERIFY2(!readAll(path).contains(token), qPrintable(path));
        }
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestUnlockCommand)

#include "tst_unlockcommand.moc"
