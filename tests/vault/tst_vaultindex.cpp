#include "model/JsonCoding.h"
#include "support/TeslaCamFixture.h"
#include "support/DriveBuilder.h"
#include "support/TmpfsMount.h"
#include "model/ArchivedEvent.h"
#include "vault/VaultIndex.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

ArchivedEvent makeEvent(const QString &folder, std::vector<ArchivedFile> files, EventKind kind = EventKind::saved)
{
    ArchivedEvent e;
    e.eventID = kind.rawValue() + QLatin1Char('|') + folder;
    e.kind = kind;
    e.folderName = folder;
    e.timestamp = Date(806058932.0);
    e.files = std::move(files);
    e.archivedAt = Date(806060000.25);
    e.sourceVolume = QStringLiteral("TESLADRIVE");
    e.relativePath = QStringLiteral("2026/%1/%2").arg(kind.rawValue(), folder);
    return e;
}

} // namespace

class TestVaultIndex : public QObject {
    Q_OBJECT

    QTemporaryDir home_;

private Q_SLOTS:
    void initTestCase()
    {
        // The Trash of these tests lives in a throwaway home.
        QVERIFY(home_.isValid());
        qputenv("HOME", home_.path().toUtf8());
        qputenv("XDG_DATA_HOME", (home_.path() + "/data").toUtf8());
        QDir().mkpath(home_.path() + "/data");
    }

    void containsComparesTheWholeKey()
    {
        const auto kept = makeEvent(QStringLiteral("2026-07-18_09-15-32"),
                                    {{QStringLiteral("a-front.mp4"), 10, {}}, {QStringLiteral("event.json"), 5, {}}});
        const VaultIndex index{{kept}};
        QVERIFY(index.contains(kept));
        QCOMPARE(index.dedupeKeySet().size(), 1);

        // Digests, dates and the volume take no part.
        auto otherDigest = kept;
        otherDigest.files[0].sha256 = QStringLiteral("zz");
        otherDigest.archivedAt = Date(1);
        otherDigest.sourceVolume = QStringLiteral("OTHER");
        QVERIFY(index.contains(otherDigest));

        // A file more or of another size: the archive engine's plan test.
        auto otherName = kept;
        otherName.files[0].name = QStringLiteral("a-back.mp4");
        QVERIFY(!index.contains(otherName));

        auto otherKind = kept;
        otherKind.kind = EventKind::sentry;
        QVERIFY(!index.contains(otherKind));
    }

    void manifestIsCompactWithNumericDates()
    {
        QTemporaryDir dir;
        const QString vault = dir.filePath("new/parents/Vault");
        const VaultIndex index{{makeEvent(QStringLiteral("2026-07-18_09-15-32"),
                                          {{QStringLiteral("a-front.mp4"), 5000000000LL, QString(64, 'a')}}),
                                makeEvent(QStringLiteral("2026-07-19_10-00-00"), {}, EventKind::sentry)}};
        index.save(vault);

        const QByteArray bytes = DriveBuilder::readQuietly(vault + "/manifest.json");
        QVERIFY(!bytes.contains('\n'));
        QVERIFY(!bytes.contains(": "));
        const QJsonObject first = QJsonDocument::fromJson(bytes).object()["events"].toArray()[0].toObject();
        QVERIFY(first["timestamp"].isDouble());
        QVERIFY(first["archivedAt"].isDouble());
        // Sizes are JSON integers, also past 32 bits.
        QVERIFY(bytes.contains("\"size\":5000000000"));

        QCOMPARE(VaultIndex::load(vault), index);
    }

    // Absent in old manifests (unknown, not partial), kept by every writer, no part of what makes two keeps the same.
    void expectedFileCountIsOptionalAndKeptByEveryWriter()
    {
        QTemporaryDir vault;
        TeslaCamFixture::writeFile(vault.filePath("manifest.json"),
                 R"({"events":[{"eventID":"saved|2026-07-18_09-15-32","kind":"saved","folderName":"2026-07-18_09-15-32",)"
                 R"("timestamp":806058932,"files":[{"name":"a-front.mp4","size":3,"sha256":"aa"}],"archivedAt":806060000,)"
                 R"("sourceVolume":"TESLA","relativePath":"2026/saved/2026-07-18_09-15-32"}]})");
        const VaultIndex old = VaultIndex::load(vault.path());
        QCOMPARE(std::tuple(old.events.size(), old.events.at(0).expectedFileCount, old.events.at(0).isIncomplete()),
                 std::tuple(size_t(1), std::optional<int>(), false));

        auto part = makeEvent(QStringLiteral("2026-07-19_10-00-00"), {{QStringLiteral("b-front.mp4"), 3, {}}});
        part.expectedFileCount = 90;
        QVERIFY(part.isIncomplete());
        auto counted = old.events[0];
        counted.expectedFileCount = 1;
        QVERIFY(!counted.isIncomplete());
        QCOMPARE(counted.dedupeKey(), old.events[0].dedupeKey());

        const VaultIndex index{{old.events[0], part, counted}};
        index.save(vault.path());
        QVERIFY(DriveBuilder::readQuietly(vault.filePath("manifest.json")).contains("\"expectedFileCount\":90"));
        QCOMPARE(VaultIndex::load(vault.path()), index);
        // The newest of an event's records speaks for it.
        QCOMPARE(*index.newestRecord(counted.eventID), counted);
        QVERIFY(!index.newestRecord(QStringLiteral("saved|nothing")));
    }

    void readerIsStrictAboutKeysAndTypes_data()
    {
        QTest::addColumn<QByteArray>("json");
        const QByteArray file = R"({"name":"a.mp4","size":10,"sha256":"ab"})";
        auto event = [&](const QByteArray &replace, const QByteArray &with) {
            QByteArray e = R"({"eventID":"saved|x","kind":"saved","folderName":"x","timestamp":1.5,"files":[FILE],)"
                           R"("archivedAt":2.5,"sourceVolume":"V","relativePath":"2026/saved/x"})";
            e.replace("FILE", file);
            e.replace(replace, with);
            return QByteArray(R"({"events":[)") + e + "]}";
        };
        QTest::newRow("not JSON") << QByteArray("{\"events\":[");
        QTest::newRow("not an object") << QByteArray("[]");
        QTest::newRow("no events key") << QByteArray("{}");
        QTest::newRow("missing eventID") << event("\"eventID\":\"saved|x\",", "");
        QTest::newRow("date as text") << event("\"timestamp\":1.5", "\"timestamp\":\"2026-07-18T09:15:32Z\"");
        QTest::newRow("unknown kind") << event("\"kind\":\"saved\"", "\"kind\":\"parked\"");
        QTest::newRow("size as text") << event("\"size\":10", "\"size\":\"10\"");
        QTest::newRow("size with a fraction") << event("\"size\":10", "\"size\":10.5");
        QTest::newRow("missing sha256") << event(",\"sha256\":\"ab\"", "");
        QTest::newRow("files not an array") << event("\"files\":[" + file + "]", "\"files\":{}");
    }

    void readerIsStrictAboutKeysAndTypes()
    {
        QFETCH(QByteArray, json);
        QTemporaryDir vault;
        TeslaCamFixture::writeFile(vault.filePath("manifest.json"), json);
        QVERIFY_THROWS_EXCEPTION(JsonCoding::DecodingError, VaultIndex::load(vault.path()));
        QCOMPARE(VaultIndex::loadOrEmpty(vault.path()).events.size(), size_t(0));
        // The forgiving reader leaves the file as it was.
        QCOMPARE(DriveBuilder::readQuietly(vault.filePath("manifest.json")), json);
    }

    void unknownKeysAreIgnoredAndDroppedOnWrite()
    {
        QTemporaryDir vault;
        TeslaCamFixture::writeFile(vault.filePath("manifest.json"),
                 R"({"version":3,"events":[{"eventID":"saved|x","kind":"saved","folderName":"x","timestamp":1.5,)"
                 R"("files":[{"name":"a.mp4","size":10,"sha256":"ab","extra":true}],"archivedAt":2.5,)"
                 R"("sourceVolume":"V","relativePath":"2026/saved/x","note":"hi"}]})");
        const VaultIndex index = VaultIndex::load(vault.path());
        QCOMPARE(index.events.size(), size_t(1));
        QCOMPARE(index.events[0].files[0].size, qint64(10));
        index.save(vault.path());
        const QByteArray bytes = DriveBuilder::readQuietly(vault.filePath("manifest.json"));
        for (const char *unknown : {"version", "extra", "note"})
            QVERIFY2(!bytes.contains(unknown), unknown);
    }

    void saveReplacesTheWholeFileAndLeavesNoTemporaryBehind()
    {
        QTemporaryDir vault;
        TeslaCamFixture::writeFile(vault.filePath("manifest.json"), QByteArray(100000, 'x'));
        VaultIndex{}.save(vault.path());
        QCOMPARE(DriveBuilder::readQuietly(vault.filePath("manifest.json")), QByteArray(R"({"events":[]})"));
        QCOMPARE(QDir(vault.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{"manifest.json"});
        // A Vault folder that can't be made.
        QVERIFY_THROWS_EXCEPTION(VaultIndex::FileError, VaultIndex{}.save(vault.filePath("manifest.json/Vault")));
    }

    void saveOnAFullDiskRaisesAndKeepsTheOldFile()
    {
        QTemporaryDir dir;
        const TmpfsMount disk(dir.path(), QStringLiteral("full-XXXXXX"), QStringLiteral("size=1m"));
        if (!disk.ok())
            QSKIP("needs root to mount a tmpfs");
        const QDir mountPoint(disk.path());
        const VaultIndex old{{makeEvent(QStringLiteral("2026-07-18_09-15-32"), {{QStringLiteral("a-front.mp4"), 3, {}}})}};
        old.save(mountPoint.path());
        const QByteArray before = DriveBuilder::readQuietly(mountPoint.filePath("manifest.json"));
        {
            QFile filler(mountPoint.filePath("filler"));
            QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            const QByteArray block(4096, 'f');
            while (filler.write(block) == block.size()) {
            }
        }
        VaultIndex bigger = old;
        for (int i = 0; i < 50; ++i)
            bigger.events.push_back(old.events[0]);
        QVERIFY_THROWS_EXCEPTION(VaultIndex::FileError, bigger.save(mountPoint.path()));
        QCOMPARE(DriveBuilder::readQuietly(mountPoint.filePath("manifest.json")), before);
        QCOMPARE(VaultIndex::load(mountPoint.path()), old);
    }

    void removeEventLandsInTheDesktopTrashOrSaysWhy_data()
    {
        QTest::addColumn<QString>("dataHome");
        QTest::newRow("a fresh home with no ~/.local/share") << QString();
        QTest::newRow("a file where the Trash's folder should be") << QStringLiteral("file");
        QTest::newRow("a read-only parent") << QStringLiteral("read-only");
    }

    void removeEventLandsInTheDesktopTrashOrSaysWhy()
    {
        QFETCH(QString, dataHome);
        QTemporaryDir dir, cwd, vault;
        const QString freshHome = dir.filePath("home");
        QDir().mkpath(freshHome);
        std::optional<TmpfsMount> readOnly;
        if (dataHome == "file") {
            TeslaCamFixture::writeFile(dir.filePath("file"), "not a folder");
            dataHome = dir.filePath("file/share");
        } else if (dataHome == "read-only") {
            readOnly.emplace(dir.path(), QStringLiteral("ro-XXXXXX"), QStringLiteral("ro,size=1m"));
            if (!readOnly->ok())
                QSKIP("needs root to mount a read-only tmpfs");
            dataHome = readOnly->path() + "/share";
        }
        // Whatever happens, the working folder must not become the Trash.
        const QString oldCwd = QDir::currentPath();
        QVERIFY(QDir::setCurrent(cwd.path()));
        qputenv("HOME", freshHome.toUtf8());
        if (dataHome.isEmpty())
            qunsetenv("XDG_DATA_HOME");
        else
            qputenv("XDG_DATA_HOME", dataHome.toUtf8());
        const auto restore = qScopeGuard([&] {
            QDir::setCurrent(oldCwd);
            qputenv("HOME", home_.path().toUtf8());
            qputenv("XDG_DATA_HOME", (home_.path() + "/data").toUtf8());
        });
        const auto kept = makeEvent(QStringLiteral("2026-07-18_09-15-32"), {{QStringLiteral("a-front.mp4"), 3, {}}});
        // An earlier record of the same event, and an event whose folder is gone.
        auto part = kept;
        part.files.clear();
        const auto other = makeEvent(QStringLiteral("2026-07-19_10-00-00"), {});
        const VaultIndex index{{part, other, kept}};
        index.save(vault.path());
        const QString clip = vault.filePath(kept.relativePath + "/a-front.mp4");
        QDir().mkpath(vault.filePath(kept.relativePath));
        TeslaCamFixture::writeFile(clip, "abc");

        if (dataHome.isEmpty()) {
            QVERIFY(VaultIndex::removeEvent(kept.eventID, vault.path()));
            const QString trash = freshHome + "/.local/share/Trash";
            QCOMPARE(DriveBuilder::readQuietly(trash + "/files/2026-07-18_09-15-32/a-front.mp4"), QByteArray("abc"));
            QVERIFY(QFileInfo::exists(trash + "/info/2026-07-18_09-15-32.trashinfo"));
            struct stat st {};
            QCOMPARE(::stat(QFile::encodeName(trash).constData(), &st), 0);
            QCOMPARE(st.st_mode & 07777, mode_t(0700));
            // Every record of the event goes; the year and kind folders stay.
            QCOMPARE(VaultIndex::load(vault.path()).events, std::vector<ArchivedEvent>{other});
            QVERIFY(QFileInfo::exists(vault.filePath("2026/saved")));
            QVERIFY(VaultIndex::removeEvent(other.eventID, vault.path()));
            QVERIFY(VaultIndex::load(vault.path()).events.empty());
        } else {
            try {
                VaultIndex::removeEvent(kept.eventID, vault.path());
                QFAIL("expected a failure");
            } catch (const VaultIndex::FileError &e) {
                QCOMPARE(e.message(), QStringLiteral("There is no Trash folder at %1/Trash and it can't be made, so "
                                                     "nothing was removed.")
                                          .arg(dataHome));
            }
            QCOMPARE(DriveBuilder::readQuietly(clip), QByteArray("abc"));
            QCOMPARE(VaultIndex::load(vault.path()), index);
        }
        QCOMPARE(QDir(cwd.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden), QStringList());
    }

    void removeEventNeverReachesOutsideTheVault_data()
    {
        QTest::addColumn<QString>("relativePath");
        QTest::newRow("empty") << QString();
        QTest::newRow("the root itself") << QStringLiteral(".");
        QTest::newRow("parent") << QStringLiteral("2026/../..");
        QTest::newRow("sibling") << QStringLiteral("../outside");
        QTest::newRow("absolute") << QStringLiteral("/tmp");
    }

    void removeEventNeverReachesOutsideTheVault()
    {
        QFETCH(QString, relativePath);
        QTemporaryDir dir;
        const QString vault = dir.filePath("Vault");
        QDir().mkpath(dir.filePath("outside"));
        auto e = makeEvent(QStringLiteral("2026-07-18_09-15-32"), {});
        e.relativePath = relativePath;
        VaultIndex{{e}}.save(vault);
        QVERIFY_THROWS_EXCEPTION(VaultIndex::FileError, VaultIndex::removeEvent(e.eventID, vault));
        QVERIFY(QFileInfo::exists(vault + "/manifest.json"));
        QVERIFY(QFileInfo::exists(dir.filePath("outside")));
        QCOMPARE(VaultIndex::load(vault).events.size(), size_t(1));
    }

    // Neither a look nor a removal writes a manifest; a bad one stops a removal before anything moves.
    void vaultWithoutManifestOrWithABadOneTouchesNothing()
    {
        QTemporaryDir vault;
        QCOMPARE(VaultIndex::load(vault.path()).events.size(), size_t(0));
        QCOMPARE(VaultIndex::loadOrEmpty(vault.path() + "/does/not/exist").events.size(), size_t(0));
        QVERIFY(!VaultIndex::removeEvent(QStringLiteral("saved|x"), vault.path()));
        QVERIFY(!QFile::exists(vault.filePath("manifest.json")));

        TeslaCamFixture::writeFile(vault.filePath("manifest.json"), "not json");
        QDir().mkpath(vault.filePath("2026/saved/x"));
        QVERIFY_THROWS_EXCEPTION(JsonCoding::DecodingError, VaultIndex::removeEvent(QStringLiteral("saved|x"), vault.path()));
        QVERIFY(QFileInfo::exists(vault.filePath("2026/saved/x")));
        QCOMPARE(DriveBuilder::readQuietly(vault.filePath("manifest.json")), QByteArray("not json"));
    }

    void removeEventRaisesWhenTheTrashFailsAndKeepsTheRecord()
    {
        // On its own volume (a tmpfs here) a Vault uses its Trash; a plain file in its place makes that unusable.
        QTemporaryDir dir;
        const TmpfsMount disk(dir.path(), QStringLiteral("own-XXXXXX"), QStringLiteral("size=4m"));
        if (!disk.ok())
            QSKIP("needs root to mount a tmpfs");
        const QDir mountPoint(disk.path());
        TeslaCamFixture::writeFile(mountPoint.filePath(".Trash-0"), "not a folder");
        TeslaCamFixture::writeFile(mountPoint.filePath(".Trash"), "not a folder");
        const QString vault = mountPoint.filePath("Vault");
        const auto kept = makeEvent(QStringLiteral("2026-07-18_09-15-32"), {{QStringLiteral("a-front.mp4"), 3, {}}});
        VaultIndex{{kept}}.save(vault);
        QDir().mkpath(vault + "/" + kept.relativePath);

        QVERIFY_THROWS_EXCEPTION(VaultIndex::FileError, VaultIndex::removeEvent(kept.eventID, vault));
        QVERIFY(QFileInfo::exists(vault + "/" + kept.relativePath));
        QCOMPARE(VaultIndex::load(vault).events.size(), size_t(1));
    }
};

QTEST_GUILESS_MAIN(TestVaultIndex)
#include "tst_vaultindex.moc"
