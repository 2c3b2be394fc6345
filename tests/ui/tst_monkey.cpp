#include "AppWindowHarness.h"
#include "FileDialogDriver.h"
#include "support/IsolatedHome.h"
#include "support/MountedVolume.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <execinfo.h>
#include <pthread.h>
#include <mutex>
#include <random>
#include <thread>
#include <unistd.h>

// A seeded random walk of the real window: clicks on whatever can be
// clicked, keys, quick switches between events, keeps and exports started
// and stopped, the map, sample mode, window sizes, and the drive pulled
// and plugged back in, on a real exFAT drive, the sample footage and a
// Vault full of events. A crash, a sanitizer report, a QML warning or the
// window's thread standing still for over 5 s ends it with the seed and the
// last steps, so the walk can be replayed:
//   KEELHOLD_MONKEY_SEED=<seed> KEELHOLD_MONKEY_SECONDS=<n> ui_tst_monkey

extern "C" void __sanitizer_set_death_callback(void (*)(void)) __attribute__((weak));

namespace {

int walkSeconds()
{
    const int asked = qEnvironmentVariableIntValue("KEELHOLD_MONKEY_SECONDS");
    return asked > 0 ? asked : 40;
}

// QtTest ends any one test function after five minutes unless told: a long
// walk is given its length and ten minutes more, before main runs.
[[maybe_unused]] const bool longWalkAllowed = [] {
    if (!qEnvironmentVariableIsSet("QTEST_FUNCTION_TIMEOUT"))
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number((qint64(walkSeconds()) + 600) * 1000));
    return true;
}();

// The walk's record, kept where a signal handler can write it out.
constexpr int ringSize = 40;
constexpr int lineSize = 240;
char steps[ringSize][lineSize];
std::atomic<int> stepCount{0};
char seedLine[160];
std::atomic<qint64> lastBeatMs{0};
std::atomic<bool> walkerBusy{false};

qint64 nowMs()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void say(const char *text)
{
    ssize_t ignored = ::write(2, text, strlen(text));
    (void)ignored;
}

void writeRecord(const char *why)
{
    say("\n=== monkey: ");
    say(why);
    say(" ===\n");
    say(seedLine);
    say("last steps:\n");
    const int count = stepCount.load();
    for (int i = std::max(0, count - ringSize); i < count; ++i) {
        say(steps[i % ringSize]);
        say("\n");
    }
}

void onSanitizerDeath() { writeRecord("the sanitizer stopped the process"); }

void onFatalSignal(int signal)
{
    writeRecord(signal == SIGABRT ? "the process aborted" : "the process crashed");
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

void noteStep(const QString &text)
{
    const int n = stepCount.load();
    std::snprintf(steps[n % ringSize], lineSize, "%5d  %s", n, text.toUtf8().constData());
    stepCount.store(n + 1);
}

// QML and JavaScript warnings fail the walk; others are only passed on.
QtMessageHandler previousHandler = nullptr;
QStringList qmlWarnings;

void onMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QString category = QString::fromLatin1(context.category ? context.category : "");
    const bool fromQml = category.startsWith(QLatin1String("qml")) || category.startsWith(QLatin1String("js"))
                         || message.contains(QLatin1String(".qml:")) || message.contains(QLatin1String("qrc:/"));
    if (type >= QtWarningMsg && fromQml)
        qmlWarnings << message;
    if (previousHandler)
        previousHandler(type, context, message);
}

// Where the window's thread stands, written by that thread itself when
// the watchdog asks (addresses, for addr2line).
pthread_t windowThread;
std::atomic<bool> stackWritten{false};

void onStackRequest(int)
{
    say("the window's thread is at:\n");
    void *frames[64];
    backtrace_symbols_fd(frames, backtrace(frames, 64), 2);
    stackWritten = true;
}

// Waits for the window's thread to answer; a thread that stands still for
// over 5 s is a hang whatever the walk was doing, and is ended with its
// record and its stack.
class Watchdog {
public:
    Watchdog()
    {
        windowThread = ::pthread_self();
        void *warm[1];
        backtrace(warm, 1); // loads the unwinder now, not in the signal handler
        ::signal(SIGUSR2, onStackRequest);
        lastBeatMs = nowMs();
        thread_ = std::thread([this] {
            std::unique_lock lock(mutex_);
            while (!wake_.wait_for(lock, std::chrono::milliseconds(250), [this] { return done_; })) {
                if (!walkerBusy && nowMs() - lastBeatMs > 5000) {
                    writeRecord("the window's thread stood still for over 5 s");
                    ::pthread_kill(windowThread, SIGUSR2);
                    wake_.wait_for(lock, std::chrono::seconds(2), [] { return stackWritten.load(); });
                    std::abort();
                }
            }
        });
    }
    ~Watchdog()
    {
        {
            std::lock_guard lock(mutex_);
            done_ = true;
        }
        wake_.notify_all();
        thread_.join();
    }

private:
    std::mutex mutex_;
    std::condition_variable wake_;
    bool done_ = false;
    std::thread thread_;
};

// The test's own blocking work (mounting) doesn't count as a hang of the app.
struct WalkerBusy {
    WalkerBusy() { walkerBusy = true; }
    ~WalkerBusy()
    {
        lastBeatMs = nowMs();
        walkerBusy = false;
    }
};

bool isClickable(QQuickItem *item)
{
    if (item->inherits("QQuickAbstractButton") || item->inherits("QQuickMouseArea"))
        return true;
    for (QObject *child : item->children())
        if (child->inherits("QQuickTapHandler"))
            return true;
    return false;
}

} // namespace

class MonkeyTest : public QObject {
    Q_OBJECT

    std::mt19937_64 rng;
    std::unique_ptr<AppWindowHarness> app;
    std::unique_ptr<MountedVolume> drive;
    QTemporaryDir work;
    QString vault;
    QString sample;
    int pulls = 0;

    int below(int n) { return int(std::uniform_int_distribution<int>(0, n - 1)(rng)); }
    int between(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); }
    QQuickWindow *window() const { return app->window(); }

    // The user's own pace between actions, drawn from the seed: part of the
    // walk being replayed, not a wait for anything to happen.
    void pause(int ms) { QTest::qWait(ms); }

    QList<QQuickItem *> clickables()
    {
        QList<QQuickItem *> out;
        QQuickItem *root = window()->contentItem(); // popups too: the overlay is its child
        const QRectF bounds(0, 0, window()->width(), window()->height());
        for (QQuickItem *item : AppWindowHarness::itemsUnder(root)) {
            if (!item->isVisible() || !item->isEnabled() || item->width() < 3 || item->height() < 3 || !isClickable(item))
                continue;
            const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
            if (bounds.contains(centre) && !item->property("text").toString().contains(QLatin1String("Quit")))
                out << item;
        }
        return out;
    }

    QQuickItem *shown(const QString &name) const { return app->shown(name); }
    QList<QQuickItem *> shownWithPrefix(const QString &prefix) const { return app->shownItems(prefix, true); }

    QString describe(QQuickItem *item) const
    {
        const QString name = item->objectName();
        const QString text = item->property("text").toString();
        return QStringLiteral("%1 \"%2\" %3").arg(QString::fromLatin1(item->metaObject()->className()),
                                                  name.isEmpty() ? text.left(40) : name,
                                                  QString::number(qintptr(item), 16));
    }

    void clickAt(QQuickItem *item, QPointF local)
    {
        const QPoint at = item->mapToScene(local).toPoint();
        if (at.x() < 0 || at.y() < 0 || at.x() >= window()->width() || at.y() >= window()->height())
            return;
        QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, at);
    }

    void clickCentre(QQuickItem *item) { clickAt(item, QPointF(item->width() / 2, item->height() / 2)); }

    bool clickNamed(const QString &name)
    {
        QQuickItem *item = shown(name);
        if (item)
            clickCentre(item);
        return item;
    }

    // A file dialog takes the whole application: it is answered first, with
    // a fresh folder of the walk's own or not at all.
    void answerDialogs()
    {
        QFileDialog *dialog = FileChooser::current();
        if (!dialog || !dialog->isVisible())
            return;
        if (dialog->fileMode() == QFileDialog::Directory && below(2) == 0) {
            const QString folder = work.filePath(QStringLiteral("chosen-%1").arg(stepCount.load()));
            QDir().mkpath(folder);
            noteStep(QStringLiteral("dialog: choose %1").arg(folder));
            FileDialogDriver::answer(folder);
        } else if (dialog->acceptMode() == QFileDialog::AcceptSave && below(2) == 0) {
            noteStep(QStringLiteral("dialog: save into the walk's folder"));
            FileDialogDriver::answer(work.filePath(QStringLiteral("saved-%1.mp4").arg(stepCount.load())),
                                     FileDialogDriver::ReplaceExisting::yes);
        } else {
            noteStep(QStringLiteral("dialog: cancel"));
            dialog->reject();
        }
    }

    void clickAnything()
    {
        const QList<QQuickItem *> items = clickables();
        if (items.isEmpty())
            return;
        QQuickItem *item = items[below(int(items.size()))];
        const QPointF local(between(1, int(item->width()) - 1), between(1, int(item->height()) - 1));
        noteStep(QStringLiteral("click %1 at %2,%3").arg(describe(item)).arg(local.x()).arg(local.y()));
        clickAt(item, local);
    }

    void switchEvents()
    {
        const QList<QQuickItem *> rows = shownWithPrefix(QStringLiteral("eventRow_"));
        if (rows.isEmpty())
            return;
        const int switches = between(2, 4);
        for (int i = 0; i < switches; ++i) {
            const QList<QQuickItem *> now = shownWithPrefix(QStringLiteral("eventRow_"));
            if (now.isEmpty())
                return;
            QQuickItem *row = now[below(int(now.size()))];
            noteStep(QStringLiteral("quick switch to %1").arg(row->objectName()));
            clickCentre(row);
            pause(between(30, 190));
        }
    }

    void pressKey()
    {
        static const Qt::Key keys[] = {Qt::Key_Space, Qt::Key_Left,  Qt::Key_Right, Qt::Key_Up,     Qt::Key_Down,
                                       Qt::Key_J,     Qt::Key_K,     Qt::Key_L,     Qt::Key_Comma,  Qt::Key_Period,
                                       Qt::Key_T,     Qt::Key_F,     Qt::Key_M,     Qt::Key_Escape, Qt::Key_Return,
                                       Qt::Key_1,     Qt::Key_2,     Qt::Key_3,     Qt::Key_4,      Qt::Key_Home,
                                       Qt::Key_End,   Qt::Key_Tab,   Qt::Key_N,     Qt::Key_Delete, Qt::Key_E};
        const Qt::Key key = keys[below(int(std::size(keys)))];
        const Qt::KeyboardModifiers modifiers = below(6) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
        noteStep(QStringLiteral("key %1%2").arg(modifiers ? QStringLiteral("Shift+") : QString(),
                                                QKeySequence(key).toString()));
        QTest::keyClick(window(), key, modifiers);
    }

    void scrub()
    {
        QQuickItem *slider = shown(QStringLiteral("timelineSlider"));
        if (!slider)
            return;
        const double x = between(0, int(slider->width()));
        noteStep(QStringLiteral("timeline at %1 of %2").arg(x).arg(slider->width()));
        clickAt(slider, QPointF(x, slider->height() / 2));
    }

    void section()
    {
        const QList<QQuickItem *> sections = shownWithPrefix(QStringLiteral("section_"));
        if (sections.isEmpty())
            return;
        QQuickItem *item = sections[below(int(sections.size()))];
        noteStep(QStringLiteral("section %1").arg(item->objectName()));
        clickCentre(item);
    }

    void keepSome()
    {
        noteStep(QStringLiteral("keep"));
        if (!clickNamed(QStringLiteral("keepButton")))
            return;
        pause(between(0, 3000));
        if (below(4) == 0)
            pullDrive(); // mid-keep, as users do
        else if (below(2) == 0 && clickNamed(QStringLiteral("cancelArchive")))
            noteStep(QStringLiteral("keep: cancel"));
    }

    void exportSome()
    {
        noteStep(QStringLiteral("export sheet"));
        if (!clickNamed(QStringLiteral("exportButton")))
            return;
        pause(between(50, 500));
        const QList<QQuickItem *> layouts = shownWithPrefix(QStringLiteral("exportLayout_"));
        if (!layouts.isEmpty() && below(2) == 0) {
            QQuickItem *layout = layouts[below(int(layouts.size()))];
            noteStep(QStringLiteral("export: %1").arg(layout->objectName()));
            clickCentre(layout);
        }
        noteStep(QStringLiteral("export: start"));
        clickNamed(QStringLiteral("startExportButton"));
        pause(between(0, 4000));
        noteStep(QStringLiteral("export: footer"));
        clickNamed(QStringLiteral("exportFooterButton"));
    }

    void toggleSample()
    {
        if (app->state.isSampleMode()) {
            noteStep(QStringLiteral("leave sample mode"));
            app->state.exitSampleMode();
        } else {
            noteStep(QStringLiteral("sample mode"));
            app->state.loadSampleFootage();
        }
    }

    void resize()
    {
        switch (below(4)) {
        case 0:
            noteStep(QStringLiteral("window maximised"));
            window()->showMaximized();
            break;
        case 1:
            noteStep(QStringLiteral("window 900x600"));
            window()->showNormal();
            window()->resize(900, 600);
            break;
        case 2:
            noteStep(QStringLiteral("window 1600x1000"));
            window()->showNormal();
            window()->resize(1600, 1000);
            break;
        default:
            noteStep(QStringLiteral("window normal"));
            window()->showNormal();
            break;
        }
    }

    void pullDrive()
    {
        if (!drive || pulls >= 6)
            return;
        ++pulls;
        noteStep(QStringLiteral("drive pulled"));
        {
            WalkerBusy busy;
            drive->pull();
        }
        pause(between(0, 3000));
        noteStep(QStringLiteral("drive plugged back in"));
        WalkerBusy busy;
        QVERIFY(drive->plugIn());
    }

    void step()
    {
        answerDialogs();
        const int roll = below(100);
        if (roll < 30)
            clickAnything();
        else if (roll < 42)
            switchEvents();
        else if (roll < 58)
            pressKey();
        else if (roll < 66)
            scrub();
        else if (roll < 72)
            section();
        else if (roll < 77)
            keepSome();
        else if (roll < 82)
            exportSome();
        else if (roll < 84)
            toggleSample();
        else if (roll < 87)
            resize();
        else if (roll < 89)
            pullDrive();
        else {
            const int ms = between(0, 1200);
            noteStep(QStringLiteral("wait %1 ms").arg(ms));
            pause(ms);
        }
        pause(between(0, 250));
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QByteArray seedText = qgetenv("KEELHOLD_MONKEY_SEED");
        const quint64 seed = seedText.isEmpty() ? std::random_device{}() : seedText.toULongLong();
        rng.seed(seed);
        std::snprintf(seedLine, sizeof seedLine, "seed %llu (replay: KEELHOLD_MONKEY_SEED=%llu)\n",
                      static_cast<unsigned long long>(seed), static_cast<unsigned long long>(seed));
        say(seedLine);
        if (__sanitizer_set_death_callback) {
            __sanitizer_set_death_callback(onSanitizerDeath);
        } else {
            for (int s : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL})
                ::signal(s, onFatalSignal);
        }
        previousHandler = qInstallMessageHandler(onMessage);

        // Show in Folder, Email… and links go nowhere outside the test.
        const QString bin = work.filePath(QStringLiteral("bin"));
        QDir().mkpath(bin);
        for (const char *tool : {"xdg-open", "xdg-email", "gio"}) {
            QFile f(bin + QLatin1Char('/') + QLatin1String(tool));
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write("#!/bin/sh\nexit 0\n");
            f.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        }
        qputenv("PATH", (bin + QLatin1Char(':')).toLocal8Bit() + qgetenv("PATH"));

        sample = QStringLiteral(KEELHOLD_BUILD_DIR "/resources/SampleTeslaCam/TeslaCam");
        if (!QFileInfo(sample).isDir())
            QSKIP("the sample footage was not made in this build");
        qputenv(AppState::sampleFootageEnv, sample.toLocal8Bit());

        // A Vault full of events, kept by the command-line tool.
        vault = work.filePath(QStringLiteral("Vault"));
        QDir().mkpath(vault);
        QProcess keep;
        keep.start(QStringLiteral(KEELHOLD_CLI_PATH), {QStringLiteral("keep"), sample, QStringLiteral("--vault"), vault});
        QVERIFY(keep.waitForFinished(300000));

        // The car's drive, a real exFAT volume holding the sample's clips;
        // first what an earlier walk that died left mounted.
        if (const int swept = MountedVolume::sweepLeftovers(QStringLiteral("KHMONKEY")))
            qInfo("unmounted %d drive(s) an earlier walk left behind", swept);
        if (geteuid() == 0) {
            drive = std::make_unique<MountedVolume>(QStringLiteral("exfat"), QStringLiteral("KHMONKEY"),
                                                    qint64(768) * 1024 * 1024);
            if (drive->ok())
                QCOMPARE(QProcess::execute(QStringLiteral("cp"),
                                           {QStringLiteral("-r"), sample, drive->path() + QStringLiteral("/TeslaCam")}),
                         0);
            else
                drive.reset();
        }
        QSettings settings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold"));
        settings.setValue(AppState::onboardingKey, true);
        settings.sync();

        app = std::make_unique<AppWindowHarness>();
        QVERIFY(app->load());
        window()->resize(1400, 900);
        app->state.setVaultURL(vault);
        if (drive)
            app->state.beginScan(drive->path() + QStringLiteral("/TeslaCam"));
        else
            app->state.loadSampleFootage();
        QTRY_VERIFY_WITH_TIMEOUT(!app->state.isScanning(), 60000);
    }

    void walk()
    {
        const int seconds = walkSeconds();
        QTimer beat;
        QObject::connect(&beat, &QTimer::timeout, [] { lastBeatMs = nowMs(); });
        beat.start(100);
        Watchdog watchdog;
        QElapsedTimer clock;
        clock.start();
        int count = 0;
        while (clock.elapsed() < qint64(seconds) * 1000) {
            step();
            ++count;
            if (!qmlWarnings.isEmpty()) {
                writeRecord("a QML warning");
                QFAIL(qPrintable(qmlWarnings.join(QLatin1Char('\n'))));
            }
            QVERIFY2(window() && window()->isVisible(), "the window went away");
        }
        std::printf("monkey: %d steps in %lld s, %d drive pulls\n", count, clock.elapsed() / 1000, pulls);
        // Whatever the walk left running ends cleanly.
        app->state.cancelCurrentArchiveTask();
        QTRY_VERIFY_WITH_TIMEOUT(!app->state.isArchiving(), 60000);
    }

    void cleanupTestCase()
    {
        app.reset();
        drive.reset();
        qInstallMessageHandler(previousHandler);
    }
};

KEELHOLD_APP_TEST_MAIN(MonkeyTest)
#include "tst_monkey.moc"
