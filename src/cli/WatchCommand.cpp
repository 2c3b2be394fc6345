#include "cli/WatchCommand.h"

#include "base/AsyncRun.h"
#include "base/DesktopNotifier.h"
#include "cli/CliInterrupt.h"
#include "cli/CliOutput.h"
#include "cli/CliScan.h"
#include "drive/DriveBoundary.h"
#include "drive/TeslaCamParser.h"
#include "engine/BookmarkStore.h"
#include "engine/DriveWatcher.h"
#include "engine/MountTable.h"
#include "vault/ArchiveEngine.h"
#include "vault/KeepSummary.h"
#include "vault/NewFootage.h"
#include "vault/VaultIndex.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QPointer>
#include <QProcess>
#include <QThreadPool>

#include <deque>
#include <memory>

namespace WatchCommand {

namespace {

struct Options {
    QString vault;
    bool withRecent = false;
    QStringList under;
};

// One drive's run, off the main thread: read, choose, keep.
struct Outcome {
    QString driveName;
    // Not a TeslaCam drive, or nothing to say: no line.
    bool passedOver = false;
    KeepSummary::Told told;
};

bool isUnder(const QString &mountPoint, const QStringList &folders)
{
    for (const QString &folder : folders)
        if (mountPoint == folder || mountPoint.startsWith(folder + QLatin1Char('/')))
            return true;
    return false;
}

Outcome keepFrom(const QString &mountPoint, const QString &driveName, const Options &options, std::stop_token stop)
{
    Outcome outcome{driveName, false, {}};
    const QString root = CliScan::teslaCamRoot(mountPoint);
    if (!QFileInfo(root).isDir()) {
        outcome.passedOver = true;
        return outcome;
    }
    // Nothing on the car's drive is ever written, the Vault included.
    if (DriveBoundary::writesInto(root, options.vault).value_or(false)) {
        outcome.told = {CliOutput::tr("Nothing was kept"), DriveBoundary::vaultRefusalText(), true};
        return outcome;
    }
    DriveScan scan;
    try {
        scan = TeslaCamParser::scan(root);
    } catch (const TeslaCamParser::ParserError &e) {
        outcome.told = {CliOutput::tr("Nothing was kept"), e.message(), true};
        return outcome;
    } catch (const TeslaCamParser::ScanError &e) {
        outcome.told = {CliOutput::tr("Nothing was kept"), e.message(), true};
        return outcome;
    }
    const std::vector<TeslaEvent> fresh =
        NewFootage::unkept(scan.events, VaultIndex::loadOrEmpty(options.vault), options.withRecent);
    const ArchivePlan plan = ArchiveEngine::plan(fresh, VaultIndex::loadOrEmpty(options.vault));
    const ArchiveReport report =
        ArchiveEngine::run(plan, options.vault, {}, ArchiveEngine::defaultTimeoutPerFile, stop);
    outcome.told = KeepSummary::of(report, driveName);
    return outcome;
}

// Drives come in on the main thread; one is kept at a time, the others wait
// their turn, and a drive that leaves before its turn is dropped.
class Watch {
public:
    Watch(Options options, std::stop_token stop) : options_(std::move(options)), stop_(std::move(stop))
    {
        pool_.setMaxThreadCount(1);
        // A click on a notification opens the app at the Vault.
        QObject::connect(&notifier_, &DesktopNotifier::activated, [](const QString &) {
            QProcess::startDetached(QStringLiteral("keelhold"), {QStringLiteral("--vault")});
        });
    }

    void start()
    {
        for (const MountTable::Entry &entry : MountTable::removableMounts(MountTable::read()))
            arrived(entry.mountPoint, QString());
        stream_ = watcher_.events();
        QObject::connect(stream_.get(), &DriveEventStream::available, [this] { drain(); });
        drain();
    }

    // Stops the run in progress; the loop ends once it has.
    void stop()
    {
        stopping_ = true;
        waiting_.clear();
        if (!running_)
            QCoreApplication::exit(0);
    }

private:
    void drain()
    {
        while (const std::optional<DriveEvent> event = stream_->takeNext()) {
            if (event->kind() == DriveEvent::unmounted)
                std::erase_if(waiting_, [&](const auto &w) { return w.first == event->volumePath(); });
            else
                arrived(event->candidate().volumeURL, event->candidate().name);
        }
    }

    void arrived(const QString &mountPoint, QString name)
    {
        if (stopping_ || !isUnder(mountPoint, options_.under))
            return;
        if (name.isEmpty())
            if (const auto candidate = DriveWatcher::volumeCandidate(mountPoint))
                name = candidate->name;
        if (name.isEmpty())
            name = QFileInfo(mountPoint).fileName();
        waiting_.emplace_back(mountPoint, name);
        next();
    }

    void next()
    {
        if (running_ || waiting_.empty())
            return;
        auto [mountPoint, name] = waiting_.front();
        waiting_.pop_front();
        running_ = true;
        auto *done = new QFutureWatcher<Outcome>();
        QObject::connect(done, &QFutureWatcher<Outcome>::finished, [this, done] {
            done->deleteLater();
            running_ = false;
            finished(done->future().result());
        });
        done->setFuture(AsyncRun::cancellable(
            pool_,
            [mountPoint, name, options = options_](std::stop_token stop) {
                return keepFrom(mountPoint, name, options, stop);
            },
            stop_));
    }

    void finished(const Outcome &outcome)
    {
        if (!outcome.passedOver) {
            // One line per run, for the journal.
            const QString line = QStringLiteral("%1 %2: %3\n")
                                     .arg(QDateTime::currentDateTime().toString(Qt::ISODate), outcome.driveName,
                                          outcome.told.sentence);
            CliOutput::out(line.toUtf8());
            if (outcome.told.news)
                notifier_.notify({outcome.told.title, outcome.told.sentence, QStringLiteral("vault")});
        }
        if (stopping_) {
            QCoreApplication::exit(0);
            return;
        }
        next();
    }

    Options options_;
    std::stop_token stop_;
    QThreadPool pool_;
    DriveWatcher watcher_;
    std::shared_ptr<DriveEventStream> stream_;
    DesktopNotifier notifier_{QStringLiteral("io.keelhold.Keelhold")};
    std::deque<std::pair<QString, QString>> waiting_;
    bool running_ = false;
    bool stopping_ = false;
};

} // namespace

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(CliOutput::tr(
        "Keeps what is new from every TeslaCam drive that is connected, now and until stopped: Sentry and saved "
        "events, and recent driving with --recent, each file checked as it is copied. Prints one line for each "
        "drive it kept from, and tells the desktop when it is done. Stop it with Ctrl-C; a keep in progress "
        "ends cleanly first."));
    parser.addHelpOption();
    const QCommandLineOption vaultOption(
        QStringLiteral("vault"), CliOutput::tr("The Vault folder (the one chosen in Keelhold when not given)."),
        QStringLiteral("DIR"));
    const QCommandLineOption recentOption(QStringLiteral("recent"),
                                          CliOutput::tr("Keep recent driving too, each minute once."));
    const QCommandLineOption underOption(
        QStringLiteral("under"),
        CliOutput::tr("Watch only drives mounted at or below this folder (repeat for more; the default is "
                      "/media, /run/media and /mnt)."),
        QStringLiteral("DIR"));
    parser.addOptions({vaultOption, recentOption, underOption});
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    if (!parser.positionalArguments().isEmpty()) {
        CliOutput::err(CliOutput::usage({QStringLiteral("keelhold-cli watch [--vault DIR] [--recent] [--under DIR]...")}));
        return CliOutput::usageExit;
    }
    Options options;
    if (parser.isSet(vaultOption)) {
        options.vault = QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(vaultOption)));
    } else {
        const BookmarkResult chosen = BookmarkStore::resolve(BookmarkKey::vaultFolder);
        if (!std::holds_alternative<QString>(chosen))
            return CliOutput::fail(CliOutput::tr("No Vault folder is chosen yet. Choose one in Keelhold, or give "
                                                 "one with --vault."));
        options.vault = std::get<QString>(chosen);
    }
    options.withRecent = parser.isSet(recentOption);
    for (const QString &folder : parser.values(underOption))
        options.under << QDir::cleanPath(QDir::current().absoluteFilePath(folder));
    if (options.under.isEmpty())
        options.under = {QStringLiteral("/media"), QStringLiteral("/run/media"), QStringLiteral("/mnt")};

    const CliInterrupt::StopsWork interrupt;
    Watch watch(options, interrupt.token());
    std::stop_callback onStop(interrupt.token(), [&watch] {
        QMetaObject::invokeMethod(qApp, [&watch] { watch.stop(); }, Qt::QueuedConnection);
    });
    CliOutput::err(CliOutput::tr("Watching for TeslaCam drives; new footage goes to %1. Ctrl-C stops.")
                       .arg(QDir::toNativeSeparators(options.vault)));
    watch.start();
    return QCoreApplication::exec();
}

} // namespace WatchCommand
