// Every input the fuzzers keep (their seeds and every input that once broke
// something) goes through the same entry points in every normal test run.
#include "FuzzEntries.h"

#include <QDir>
#include <QtTest>
#include <sys/resource.h>

class FuzzCorpusTest : public QObject {
    Q_OBJECT

private:
    static long peakMegabytes()
    {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss / 1024;
    }

    static QDir corpus() { return QDir(QStringLiteral(KEELHOLD_FUZZ_DIR)); }

    static QStringList inputsOf(const QString &folder)
    {
        QStringList paths;
        for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden, QDir::Name))
            paths << file.filePath();
        return paths;
    }

private Q_SLOTS:
    void initTestCase() { FuzzEntries::prepare(); }

    // A folder the targets don't know would never be fuzzed or checked.
    void everyFolderBelongsToATarget()
    {
        for (const QString &dir : corpus().entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            QVERIFY2(dir == QLatin1String("regressions") || FuzzEntries::target(dir), qPrintable(dir));
        QDir regressions = corpus();
        if (regressions.cd(QStringLiteral("regressions"))) {
            for (const QString &dir : regressions.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
                QVERIFY2(FuzzEntries::target(dir), qPrintable(dir));
        }
        for (const FuzzEntries::Target &target : FuzzEntries::targets())
            QVERIFY2(!inputsOf(corpus().filePath(QLatin1String(target.name))).isEmpty(), target.name);
    }

    void everyInputGoesThrough_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("path");
        for (const FuzzEntries::Target &target : FuzzEntries::targets()) {
            const QString name = QLatin1String(target.name);
            for (const QString &folder : {corpus().filePath(name), corpus().filePath(QStringLiteral("regressions/") + name)})
                for (const QString &path : inputsOf(folder))
                    QTest::newRow(qPrintable(corpus().relativeFilePath(path))) << name << path;
        }
    }

    void everyInputGoesThrough()
    {
        QFETCH(QString, target);
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray input = file.readAll();
        const long before = peakMegabytes();
        const QString broken = FuzzEntries::target(target)->run(input);
        QVERIFY2(broken.isEmpty(), qPrintable(broken));
        // What the fuzzers' memory limit catches, checked here too: no input
        // of a few kilobytes may cost half a gigabyte.
        const long grown = peakMegabytes() - before;
        QVERIFY2(grown < 512, qPrintable(QStringLiteral("the peak memory grew by %1 MB").arg(grown)));
    }
};

QTEST_GUILESS_MAIN(FuzzCorpusTest)
#include "tst_fuzzcorpus.moc"
