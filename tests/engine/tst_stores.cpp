// The persistent stores against real files and real settings, in a
// temporary home folder: what one instance or process writes, the next reads.

#include "support/DriveBuilder.h"
#include "support/IsolatedHome.h"
#include "support/ProgramRun.h"
#include "support/TeslaCamFixture.h"
#include "drive/TeslaCamParser.h"
#include "engine/BookmarkStore.h"
#include "engine/ScanCache.h"
#include "engine/TriageStore.h"
#include "model/JsonCoding.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QtConcurrent/QtConcurrentRun>

namespace {

QJsonObject readObject(const QString &path)
{
    return QJsonDocument::fromJson(DriveBuilder::readQuietly(path)).object();
}

// A real scan of a small drive, so the cache carries every kind of value.
DriveScan sampleScan(const QString &folder)
{
    TeslaCamFixture drive(folder + QStringLiteral("/TeslaCam"));
    const QString ev = drive.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2024-06-01_15-05-30"),
                                      TeslaCamFixture::eventJson(QStringLiteral("2024-06-01T15:05:30"),
                                                                 QStringLiteral("sentry_aware_accel_0.61"),
                                                                 QStringLiteral("Taylor"), QStringLiteral("30.6075"),
                                                                 QStringLiteral("-97.4812")));
    drive.addClip(ev, QStringLiteral("2024-06-01_15-04-30"), QStringLiteral("front"), 4096);
    drive.addClip(ev, QStringLiteral("2024-06-01_15-04-30"), QStringLiteral("back"), 0);
    drive.addClip(ev, QStringLiteral("2024-06-01_15-04-30"), QStringLiteral("cabin"), 10);
    drive.addRecentClip(QStringLiteral("2024-06-02_08-00-00"), QStringLiteral("front"), 2048);
    DriveScan scan = TeslaCamParser::scan(drive.root());
    scan.scannedAt = Date(739000000.123456789); // a fraction that must survive the file
    return scan;
}

} // namespace

class TestStores : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void scanCacheRoundTripAcrossInstances()
    {
        const QString file = dir_.filePath(QStringLiteral("roundtrip.json"));
        const DriveScan scan = sampleScan(dir_.filePath(QStringLiteral("roundtrip-drive")));
        QVERIFY(!scan.events.empty() && !scan.issues.empty());
        ScanCache(file).store(scan, QStringLiteral("UNTITLED|-1")).waitForFinished();
        // Compact JSON, keyed by the drive key, dates as plain numbers.
        QVERIFY(!DriveBuilder::readQuietly(file).contains('\n'));
        const QJsonObject root = readObject(file);
        QCOMPARE(root.keys(), QStringList{QStringLiteral("UNTITLED|-1")});
        QCOMPARE(root.value(QStringLiteral("UNTITLED|-1")).toObject().value(QStringLiteral("scannedAt")).toDouble(),
                 739000000.123456789);

        ScanCache second(file);
        QVERIFY(second.cached(QStringLiteral("UNTITLED|-1")).result() == std::optional(scan));
        QVERIFY(!second.cached(QStringLiteral("OTHER|-1")).result().has_value());
    }
    void scanCacheDamagedFileReadsEmptyAndUnwritableIsSilent()
    {
        const QString file = dir_.filePath(QStringLiteral("corrupt.json"));
        const DriveScan scan = sampleScan(dir_.filePath(QStringLiteral("corrupt-drive")));
        // Valid JSON, but one entry isn't a scan: the whole file counts as damaged.
        TeslaCamFixture::writeFile(file, R"({"A|1":{"volumeName":"A"},"B|2":42})");
        {
            ScanCache cache(file);
            QVERIFY(!cache.cached(QStringLiteral("A|1")).result().has_value());
            cache.store(scan, QStringLiteral("C|3")).waitForFinished();
        }
        QCOMPARE(readObject(file).keys(), QStringList{QStringLiteral("C|3")});

        TeslaCamFixture::writeFile(file, "\x00\xff not json at all");
        ScanCache again(file);
        QVERIFY(!again.cached(QStringLiteral("C|3")).result().has_value());
        again.store(scan, QStringLiteral("D|4")).waitForFinished();
        QCOMPARE(readObject(file).keys(), QStringList{QStringLiteral("D|4")});

        // Below a plain file it can never be written: quietly, the change stays in memory for the process's life.
        const QString unwritable = file + QStringLiteral("/scan-cache.json");
        ScanCache cache(unwritable);
        cache.store(scan, QStringLiteral("A|1")).waitForFinished();
        cache.invalidate(QStringLiteral("B|1")).waitForFinished();
        QVERIFY(cache.cached(QStringLiteral("A|1")).result().has_value());
        QVERIFY(!QFile::exists(unwritable));
    }
    // Every store and invalidation rewrites the whole map, even when the key is
    // unknown; a first lookup writes nothing; the file is read once per instance.
    void scanCacheWritesTheWholeMapAndReadsItOnce()
    {
        const QString file = dir_.filePath(QStringLiteral("map.json"));
        const DriveScan scan = sampleScan(dir_.filePath(QStringLiteral("map-drive")));
        DriveScan later = scan;
        later.volumeName = QStringLiteral("LATER");
        later.events.clear();
        ScanCache cache(file);
        QVERIFY(!cache.cached(QStringLiteral("X|1")).result().has_value());
        QVERIFY(!QFile::exists(file));
        cache.store(scan, QStringLiteral("A|1"));
        cache.store(scan, QStringLiteral("B|2"));
        cache.store(later, QStringLiteral("B|2")).waitForFinished();
        QVERIFY(QFile::remove(file));
        cache.invalidate(QStringLiteral("nobody|0")).waitForFinished();
        QCOMPARE(readObject(file).keys(), (QStringList{QStringLiteral("A|1"), QStringLiteral("B|2")}));
        cache.invalidate(QStringLiteral("A|1")).waitForFinished();
        QCOMPARE(readObject(file).keys(), QStringList{QStringLiteral("B|2")});
        QVERIFY(!cache.cached(QStringLiteral("A|1")).result().has_value());

        ScanCache reader(file);
        QCOMPARE(reader.cached(QStringLiteral("B|2")).result()->volumeName, QStringLiteral("LATER"));
        // Another writer changes the file behind this instance's back: this process keeps what it loaded.
        TeslaCamFixture::writeFile(file, "{}");
        QVERIFY(reader.cached(QStringLiteral("B|2")).result().has_value());
    }

    void triageSurvivesIntoAnotherProcess()
    {
        // The child uses the shared store on this isolated home's default file, as the application does.
        const QString file = TriageStore::shared().filePath();
        QFile::remove(file);
        const QStringList marks{QStringLiteral("--set-triage"), QStringLiteral("saved|2024-06-01_15-05-30"), QStringLiteral("kept"),
                                QStringLiteral("sentry|2024-06-02_08-00-00"), QStringLiteral("new")};
        QCOMPARE(ProgramRun::run(QCoreApplication::applicationFilePath(), marks).exitCode, 0);

        // `new` is stored like any other state, not dropped.
        QCOMPARE(readObject(file),
                 QJsonObject({{"saved|2024-06-01_15-05-30", "kept"}, {"sentry|2024-06-02_08-00-00", "new"}}));

        TriageStore reader(file);
        QCOMPARE(reader.allStates().result(), (TriageStore::States{{"saved|2024-06-01_15-05-30", TriageState::kept},
                                                                   {"sentry|2024-06-02_08-00-00", TriageState::new_}}));
        QCOMPARE(reader.state(QStringLiteral("saved|2024-06-01_15-05-30")).result(), TriageState::kept);
    }
    void triageUnknownValueEmptiesTheStore()
    {
        const QString file = dir_.filePath(QStringLiteral("triage-bad.json"));
        TeslaCamFixture::writeFile(file, R"({"sentry|a":"kept","sentry|b":"archived","saved|c":"dismissed"})");
        {
            TriageStore store(file);
            QCOMPARE(store.state(QStringLiteral("sentry|a")).result(), TriageState::new_);
            QVERIFY(store.allStates().result().isEmpty());
            store.set(TriageState::reviewed, QStringLiteral("recent|d")).waitForFinished();
        }
        // The old marks are gone for good: only what this process set remains.
        QCOMPARE(readObject(file), QJsonObject({{"recent|d", "reviewed"}}));

        // A value of the wrong type spoils the file just the same.
        TeslaCamFixture::writeFile(file, R"({"sentry|a":"kept","sentry|b":1})");
        QVERIFY(TriageStore(file).allStates().result().isEmpty());
    }
    void triageCallsFromManyThreadsAreSerialised()
    {
        const QString file = dir_.filePath(QStringLiteral("triage-many.json"));
        TriageStore store(file);
        QList<QFuture<void>> writers;
        for (int t = 0; t < 8; ++t) {
            writers.append(QtConcurrent::run([&store, t] {
                for (int i = 0; i < 50; ++i)
                    store.set(TriageState::allCases()[size_t(i % 4)], QStringLiteral("e%1-%2").arg(t).arg(i));
            }));
        }
        for (auto &w : writers)
            w.waitForFinished();
        QCOMPARE(store.allStates().result().size(), 400);
        QCOMPARE(readObject(file).size(), 400);
        QCOMPARE(TriageStore(file).state(QStringLiteral("e3-6")).result(), TriageState::kept);
    }

    void bookmarkKeysRoundTripAndClearApart()
    {
        const QString drive = dir_.filePath(QStringLiteral("drive/TeslaCam"));
        const QString vault = dir_.filePath(QStringLiteral("k-vault"));
        QVERIFY(QDir().mkpath(drive) && QDir().mkpath(vault));
        BookmarkStore::save(drive + QStringLiteral("/"), BookmarkKey::teslaDrive);
        BookmarkStore::save(vault, BookmarkKey::vaultFolder);
        QCOMPARE(std::get<QString>(BookmarkStore::resolve(BookmarkKey::teslaDrive)), drive);
        QCOMPARE(std::get<QString>(BookmarkStore::resolve(BookmarkKey::vaultFolder)), vault);
        BookmarkStore::clear(BookmarkKey::vaultFolder);
        QCOMPARE(std::get<QString>(BookmarkStore::resolve(BookmarkKey::teslaDrive)), drive);
        QCOMPARE(std::get<BookmarkError>(BookmarkStore::resolve(BookmarkKey::vaultFolder)).errorCase(),
                 BookmarkError::notFound);

        // A folder that isn't there is never saved.
        QVERIFY_THROWS_EXCEPTION(BookmarkStore::StoreError,
                                 BookmarkStore::save(dir_.filePath(QStringLiteral("nowhere")), BookmarkKey::vaultFolder));
        QCOMPARE(std::get<BookmarkError>(BookmarkStore::resolve(BookmarkKey::vaultFolder)).errorCase(),
                 BookmarkError::notFound);
    }
    void bookmarkOfAGoneFolderOrGarbageIsStale()
    {
        const QString folder = dir_.filePath(QStringLiteral("gone"));
        QVERIFY(QDir().mkpath(folder));
        BookmarkStore::save(folder, BookmarkKey::vaultFolder);
        QVERIFY(QDir(folder).removeRecursively());
        // Gone, or a file where the folder was: stale, and stale is not repaired.
        TeslaCamFixture::writeFile(folder, "not a folder");
        QCOMPARE(std::get<BookmarkError>(BookmarkStore::resolve(BookmarkKey::vaultFolder)).errorCase(),
                 BookmarkError::stale);
        QSettings settings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold"));
        QCOMPARE(settings.value(BookmarkStore::settingsKey(BookmarkKey::vaultFolder)).toString(), folder);

        const QString key = BookmarkStore::settingsKey(BookmarkKey::teslaDrive);
        for (const QVariant &value : {QVariant(QByteArray("\x01\x02bookmark-bytes")), QVariant(42),
                                      QVariant(QStringLiteral("relative/path")), QVariant(QStringList{"/", "/tmp"})}) {
            settings.setValue(key, value);
            settings.sync();
            const BookmarkResult result = BookmarkStore::resolve(BookmarkKey::teslaDrive);
            QVERIFY2(std::holds_alternative<BookmarkError>(result), qPrintable(value.toString()));
            QCOMPARE(std::get<BookmarkError>(result).errorCase(), BookmarkError::stale);
        }
    }

private:
    QTemporaryDir dir_;
};

int main(int argc, char **argv)
{
    // The child of triageSurvivesIntoAnotherProcess: same home as the parent.
    if (argc >= 2 && qstrcmp(argv[1], "--set-triage") == 0) {
        QCoreApplication app(argc, argv);
        for (int i = 2; i + 1 < argc; i += 2) {
            const auto state = TriageState::fromRawValue(QString::fromUtf8(argv[i + 1]));
            if (!state)
                return 3;
            TriageStore::shared().set(*state, QString::fromUtf8(argv[i])).waitForFinished();
        }
        return 0;
    }
    IsolatedHome::setUp();
    QCoreApplication app(argc, argv);
    TestStores tc;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&tc, argc, argv);
}

#include "tst_stores.moc"
