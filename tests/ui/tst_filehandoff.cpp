#include "FileHandOff.h"
#include "support/TeslaCamFixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/prctl.h>

namespace {

// The processes this one has started and not yet reaped. This process
// adopts its children's orphans (see initTestCase), so a program started
// detached is among them as soon as its start returns, and stays until the
// test ends.
QSet<qint64> childProcesses()
{
    QSet<qint64> out;
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile list(tasks.filePath(task + QStringLiteral("/children")));
        if (!list.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray &id : list.readAll().split(' '))
            if (!id.trimmed().isEmpty())
                out.insert(id.trimmed().toLongLong());
    }
    return out;
}

QSet<qint64> startedSince(const QSet<qint64> &before) { return childProcesses() - before; }

} // namespace

// The hand-off runs the desktop's own programs. Here a folder of small
// stand-in programs takes their place on PATH, each leaving a note of how
// it was called, so the order of attempts and the arguments can be seen.
class TestFileHandOff : public QObject {
    Q_OBJECT

private:
    QTemporaryDir dir_;
    QByteArray oldPath_;

    QString bin() const { return dir_.filePath(QStringLiteral("bin")); }
    QString notes() const { return dir_.filePath(QStringLiteral("notes")); }

    void program(const QString &name, const QByteArray &body)
    {
        const QString path = bin() + QLatin1Char('/') + name;
        TeslaCamFixture::writeFile(path, "#!/bin/sh\n" + body + "\n");
        QVERIFY(QFile::setPermissions(path, QFile::permissions(path) | QFileDevice::ExeOwner));
    }
    void noteTaker(const QString &name, int exitCode)
    {
        program(name, QStringLiteral("echo \"%1 $*\" >> '%2'\nexit %3").arg(name, notes()).arg(exitCode).toUtf8());
    }
    QStringList readNotes() const
    {
        QFile f(notes());
        if (!f.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    QString exported() const { return dir_.filePath(QStringLiteral("out/Front Camera.mp4")); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(prctl(PR_SET_CHILD_SUBREAPER, 1) == 0);
        QVERIFY(dir_.isValid());
        QVERIFY(QDir().mkpath(bin()));
        TeslaCamFixture::writeFile(exported(), "mp4");
        oldPath_ = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(bin()));
    }
    void cleanupTestCase() { qputenv("PATH", oldPath_); }
    void init()
    {
        QFile::remove(notes());
        QVERIFY(QDir(bin()).removeRecursively() && QDir().mkpath(bin()));
    }

    void fileManagerSelectsTheFile()
    {
        noteTaker(QStringLiteral("dbus-send"), 0);
        noteTaker(QStringLiteral("xdg-open"), 0);
        const auto before = childProcesses();
        QVERIFY(FileHandOff::showInFolder(exported()));
        const auto asked = startedSince(before); // the file manager, still starting perhaps
        QCOMPARE(asked.size(), 1);
        QTRY_COMPARE(readNotes().size(), 1);
        const QString call = readNotes().front();
        QVERIFY(call.startsWith(QStringLiteral("dbus-send --session")));
        // The file's address, with its space escaped as a URI wants.
        for (const char *part : {"org.freedesktop.FileManager1.ShowItems", "array:string:file://", "Front%20Camera.mp4"})
            QVERIFY2(call.contains(QLatin1String(part)), qPrintable(call));
        // Its answer is taken as it is reaped; nothing else was started then.
        QTRY_VERIFY(!childProcesses().contains(*asked.begin()));
        QVERIFY(startedSince(before).isEmpty());
    }

    // No file manager service, or none installed: the folder opens instead.
    void folderOpensWhenTheFileManagerFailsOrIsMissing()
    {
        noteTaker(QStringLiteral("dbus-send"), 1);
        noteTaker(QStringLiteral("xdg-open"), 0);
        QVERIFY(FileHandOff::showInFolder(exported()));
        QTRY_COMPARE(readNotes().size(), 2);
        QVERIFY(readNotes().at(0).startsWith(QStringLiteral("dbus-send")));
        QCOMPARE(readNotes().at(1), QStringLiteral("xdg-open ") + dir_.filePath(QStringLiteral("out")));

        QFile::remove(notes());
        QFile::remove(bin() + QStringLiteral("/dbus-send"));
        QVERIFY(FileHandOff::showInFolder(exported()));
        QTRY_COMPARE(readNotes(), QStringList{QStringLiteral("xdg-open ") + dir_.filePath(QStringLiteral("out"))});
    }

    // A bus that never answers must not freeze the window; the folder opens after the limit.
    void silentFileManagerNeverHoldsTheCaller()
    {
        program(QStringLiteral("dbus-send"), "exec /bin/sleep 30");
        noteTaker(QStringLiteral("xdg-open"), 0);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(FileHandOff::showInFolder(exported()));
        QVERIFY(clock.elapsed() < FileHandOff::answerLimit.count()); // no wait for the answer
        QTRY_VERIFY_WITH_TIMEOUT(!readNotes().isEmpty(), int(FileHandOff::answerLimit.count()) + 5000);
        // (a coarse timer: up to 5% early)
        QVERIFY(clock.elapsed() >= FileHandOff::answerLimit.count() * 9 / 10);
        QVERIFY(readNotes().front().startsWith(QStringLiteral("xdg-open ")));
    }

    void nothingHappensForAMissingFile()
    {
        noteTaker(QStringLiteral("dbus-send"), 0);
        noteTaker(QStringLiteral("xdg-open"), 0);
        noteTaker(QStringLiteral("xdg-email"), 0);
        const QString gone = dir_.filePath(QStringLiteral("out/gone.mp4"));
        const auto before = childProcesses();
        QVERIFY(!FileHandOff::showInFolder(gone));
        QVERIFY(!FileHandOff::email(gone));
        QVERIFY(startedSince(before).isEmpty());
    }

    void emailOnlyWhereTheDesktopCanSendIt()
    {
        QVERIFY(!FileHandOff::canEmail());
        QVERIFY(!FileHandOff::email(exported()));
        noteTaker(QStringLiteral("xdg-email"), 0);
        QVERIFY(FileHandOff::canEmail());
        QVERIFY(FileHandOff::email(exported()));
        QTRY_COMPARE(readNotes(), QStringList{QStringLiteral("xdg-email --attach ") + exported()});
    }
};

QTEST_GUILESS_MAIN(TestFileHandOff)
#include "tst_filehandoff.moc"
