#include "drive/TeslaCamParser.h"
#include "model/JsonCoding.h"
#include "support/ProgramRun.h"
#include "support/TeslaCamFixture.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <unistd.h>

namespace {
using Result = ProgramRun::Result;

Result runCli(const QStringList &args, const QStringList &prefix = {})
{
    QStringList all = prefix;
    all << QStringLiteral(KEELHOLD_CLI_PATH) << args;
    const QString program = all.takeFirst();
    return ProgramRun::run(program, all);
}

// Runs as an unprivileged user, so permission checks apply even when the suite runs as root.
QStringList asNobody()
{
    return {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
}

QString buildDrive(const QString &base)
{
    TeslaCamFixture fx(base + "/TeslaCam");
    const QString e = fx.addEvent("SentryClips", "2024-06-01_15-05-00",
                                  TeslaCamFixture::eventJson("2024-06-01T15:04:31Z", "sentry_aware_accel_0.52", "Taylor",
                                                             "30.6075", "-97.4812"));
    fx.addClip(e, "2024-06-01_15-04-00", "front", 31'000'000);
    fx.addClip(e, "2024-06-01_15-04-00", "back", 29'000'000);
    fx.addEvent("SavedClips", "2024-06-02_09-00-00", TeslaCamFixture::eventJson("2024-06-02T09:00:00", "user_interaction_honk"));
    fx.addRecentClip("2024-06-03_08-00-00", "front");
    TeslaCamFixture::writeFile(fx.path("SentryClips/odd.txt"), "x");
    return fx.root();
}
} // namespace

class ScanCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void printsTheScanAsModelJson()
    {
        QTemporaryDir tmp;
        const QString root = buildDrive(tmp.path());
        const Result r = runCli({"scan", root});
        QCOMPARE(r.exitCode, 0);
        QVERIFY(r.out.endsWith('\n'));
        QCOMPARE(r.out.count('\n'), 1); // one compact document
        const DriveScan printed = DriveScan::fromJson(JsonCoding::parseObject(r.out));
        DriveScan direct = TeslaCamParser::scan(root);
        // Only the moment and the free space may differ between two scans.
        direct.scannedAt = printed.scannedAt;
        direct.freeBytes = printed.freeBytes;
        QCOMPARE(printed, direct);
        QCOMPARE(printed.events.size(), size_t(3));
        QCOMPARE(printed.issues.size(), size_t(1));
        QVERIFY(r.err.contains(QStringLiteral("Scan complete.")));

        // --pretty is the same document, laid out.
        const Result pretty = runCli({"scan", root, "--pretty"});
        QCOMPARE(pretty.exitCode, 0);
        QVERIFY(pretty.out.count('\n') > 20);
        QJsonObject a = JsonCoding::parseObject(r.out);
        QJsonObject b = JsonCoding::parseObject(pretty.out);
        for (auto *o : {&a, &b}) {
            o->remove("scannedAt");
            o->remove("freeBytes");
        }
        QCOMPARE(a, b);
        // A drive's root stands for its TeslaCam folder.
        const Result fromTheTop = runCli({"scan", tmp.path()});
        QCOMPARE(fromTheTop.exitCode, 0);
        const DriveScan top = DriveScan::fromJson(JsonCoding::parseObject(fromTheTop.out));
        QCOMPARE(top.teslaCamURL, root);
        QCOMPARE(top.events.size(), printed.events.size());
    }

    void plainSentencesForRootFailuresAndRefusals()
    {
        QTemporaryDir tmp;
        Result r = runCli({"scan", tmp.path() + "/missing"});
        QCOMPARE(r.exitCode, 2);
        QVERIFY(r.out.isEmpty());
        QVERIFY2(r.err.contains("There is no folder at"), qPrintable(r.err));

        TeslaCamFixture::writeFile(tmp.path() + "/file", "x");
        r = runCli({"scan", tmp.path() + "/file"});
        QCOMPARE(r.exitCode, 2);
        QVERIFY2(r.err.contains("is a file, not a folder"), qPrintable(r.err));

        if (::geteuid() != 0 || QStandardPaths::findExecutable("setpriv").isEmpty())
            QSKIP("needs root and setpriv to run the tool as an unprivileged user");
        const QString root = buildDrive(tmp.path() + "/drive");
        QProcess::execute("chmod", {"-R", "a+rX", tmp.path()});

        // A refused event folder is noted in the scan; the scan still succeeds.
        const QString event = root + "/SentryClips/2024-06-01_15-05-00";
        QFile::setPermissions(event, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        r = runCli({"scan", root}, asNobody());
        QCOMPARE(r.exitCode, 0);
        const DriveScan scan = DriveScan::fromJson(JsonCoding::parseObject(r.out));
        QVERIFY(std::any_of(scan.issues.begin(), scan.issues.end(),
                            [&](const auto &i) { return i.kind == ScanIssue::Kind::unreadableFolder && i.path == event; }));

        // A refused SentryClips stops the scan, naming that folder.
        QFile::setPermissions(root + "/SentryClips", QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        r = runCli({"scan", root}, asNobody());
        QCOMPARE(r.exitCode, 2);
        QVERIFY(r.out.isEmpty());
        QVERIFY2(r.err.contains("isn't allowed to read") && r.err.contains(root + "/SentryClips"), qPrintable(r.err));

        // And so does a refused root.
        QFile::setPermissions(root, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        r = runCli({"scan", root}, asNobody());
        QCOMPARE(r.exitCode, 2);
        QVERIFY2(r.err.contains(root), qPrintable(r.err));
    }
};

QTEST_GUILESS_MAIN(ScanCommandTest)
#include "tst_scancommand.moc"
