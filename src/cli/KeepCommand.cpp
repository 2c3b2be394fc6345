#include "cli/KeepCommand.h"

#include "cli/CliOutput.h"
#include "cli/CliScan.h"
#include "drive/DriveBoundary.h"
#include "drive/TeslaCamParser.h"
#include "model/JsonCoding.h"
#include "vault/ArchiveEngine.h"
#include "vault/VaultIndex.h"

#include <QCommandLineParser>
#include <QDir>
#include <cmath>
#include <QElapsedTimer>

#include <atomic>
#include <chrono>
#include <csignal>
#include <mutex>
#include <optional>
#include <thread>

namespace KeepCommand {

namespace {

std::atomic<bool> interrupted{false};

void onInterrupt(int)
{
    interrupted.store(true);
}

// Ctrl-C asks the run to stop after its current step. The handler resets
// itself, so a second Ctrl-C ends the process at once (a dead drive can
// hold the current read for a long time).
class InterruptGuard {
public:
    InterruptGuard()
    {
        interrupted.store(false);
        struct sigaction action {};
        action.sa_handler = onInterrupt;
        sigemptyset(&action.sa_mask);
        action.sa_flags = SA_RESETHAND;
        ::sigaction(SIGINT, &action, &oldInt_);
        ::sigaction(SIGTERM, &action, &oldTerm_);
    }
    ~InterruptGuard()
    {
        ::sigaction(SIGINT, &oldInt_, nullptr);
        ::sigaction(SIGTERM, &oldTerm_, nullptr);
    }
    InterruptGuard(const InterruptGuard &) = delete;
    InterruptGuard &operator=(const InterruptGuard &) = delete;

private:
    struct sigaction oldInt_ {};
    struct sigaction oldTerm_ {};
};

QString megabytes(qint64 bytes)
{
    return QString::number(double(bytes) / 1e6, 'f', 1);
}

} // namespace

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    //: The numbers are exit codes; keep them
    parser.setApplicationDescription(CliOutput::tr(
        "Copies events from a TeslaCam folder into a Vault folder, checking each file's size and recording "
        "its SHA-256, and prints the report as JSON.\n"
        "Exit status: 0 when everything was kept, 1 when some files could not be kept, 130 when stopped with "
        "Ctrl-C, 2 when the drive could not be read."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), CliOutput::tr("The TeslaCam folder to read, or the drive that holds it."));
    const QCommandLineOption vaultOption(QStringLiteral("vault"), CliOutput::tr("The Vault folder."),
                                         QStringLiteral("DIR"));
    //: "sentry|<folder>" shows how an event's id looks; keep it as it is
    const QCommandLineOption eventOption(QStringLiteral("event"),
                                         CliOutput::tr("An event to keep, as printed by scan (\"sentry|<folder>\"). "
                                                       "Repeat for more; without it, every event is kept."),
                                         QStringLiteral("ID"));
    const QCommandLineOption timeoutOption(QStringLiteral("timeout"),
                                           CliOutput::tr("Seconds allowed for each file (default 10)."),
                                           QStringLiteral("SECONDS"));
    const QCommandLineOption pretty(QStringLiteral("pretty"), CliOutput::tr("Indent the JSON for reading."));
    parser.addOptions({vaultOption, eventOption, timeoutOption, pretty});
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1 || !parser.isSet(vaultOption)) {
        CliOutput::err(CliOutput::usage({QStringLiteral("keelhold-cli keep <TeslaCam folder> --vault DIR [--event ID]...")}));
        return CliOutput::usageExit;
    }
    auto timeout = ArchiveEngine::defaultTimeoutPerFile;
    if (parser.isSet(timeoutOption)) {
        bool ok = false;
        const double seconds = parser.value(timeoutOption).toDouble(&ok);
        // NaN and infinity parse as numbers; a day is more than any file needs.
        if (!ok || !std::isfinite(seconds) || seconds <= 0 || seconds > 86400) {
            CliOutput::err(CliOutput::tr("The time limit must be a number of seconds, more than 0 and at most a day."));
            return CliOutput::failureExit;
        }
        timeout = std::chrono::milliseconds(qint64(seconds * 1000));
    }
    const QString root = CliScan::teslaCamRoot(positional.first());
    const QString vault = QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(vaultOption)));

    // Nothing on the car's drive is ever written, the Vault included.
    if (vault == root || vault.startsWith(root + QLatin1Char('/'))
        || DriveBoundary::writesInto(root, vault).value_or(false)) {
        CliOutput::err(DriveBoundary::vaultRefusalText());
        return CliOutput::failureExit;
    }

    DriveScan scan;
    try {
        scan = TeslaCamParser::scan(root);
    } catch (const TeslaCamParser::ParserError &e) {
        CliOutput::err(e.message());
        return CliOutput::failureExit;
    } catch (const TeslaCamParser::ScanError &e) {
        CliOutput::err(e.message());
        return CliOutput::failureExit;
    }

    std::vector<TeslaEvent> chosen;
    const QStringList ids = parser.values(eventOption);
    if (ids.isEmpty()) {
        chosen = scan.events;
    } else {
        for (const QString &id : ids) {
            const auto it = std::find_if(scan.events.begin(), scan.events.end(),
                                         [&](const TeslaEvent &e) { return e.id() == id; });
            if (it == scan.events.end()) {
                //: %1 is an event's id
                CliOutput::err(CliOutput::tr("There is no event \u201c%1\u201d on this drive.").arg(id));
                return CliOutput::failureExit;
            }
            chosen.push_back(*it);
        }
    }

    const ArchivePlan plan = ArchiveEngine::plan(chosen, VaultIndex::loadOrEmpty(vault));
    // The run reports from its own thread; only this thread prints.
    const bool live = CliOutput::stderrIsTerminal();
    std::mutex progressMutex;
    std::optional<ArchiveProgress> latest;
    auto progress = [&](const ArchiveProgress &p) {
        if (!live)
            return;
        const std::lock_guard lock(progressMutex);
        latest = p;
    };
    QElapsedTimer clock;
    clock.start();
    auto showProgress = [&] {
        std::optional<ArchiveProgress> p;
        {
            const std::lock_guard lock(progressMutex);
            p = std::exchange(latest, std::nullopt);
        }
        if (!p)
            return;
        const double seconds = std::max(0.001, double(clock.elapsed()) / 1000.0);
        const QString copied = megabytes(p->bytesCopied);
        const QString speed = megabytes(qint64(double(p->bytesCopied) / seconds));
        if (p->currentFileName)
            //: Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second, %5 the file being copied
            CliOutput::status(CliOutput::tr("%1/%2 events \u00b7 %3 MB \u00b7 %4 MB/s \u00b7 %5")
                                  .arg(p->eventsCompleted)
                                  .arg(p->totalEvents)
                                  .arg(copied, speed, *p->currentFileName));
        else
            //: Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second
            CliOutput::status(CliOutput::tr("%1/%2 events \u00b7 %3 MB \u00b7 %4 MB/s")
                                  .arg(p->eventsCompleted)
                                  .arg(p->totalEvents)
                                  .arg(copied, speed));
    };

    ArchiveReport report;
    {
        const InterruptGuard guard;
        std::stop_source stop;
        std::atomic<bool> finished{false};
        std::thread worker([&] {
            report = ArchiveEngine::run(plan, vault, progress, timeout, stop.get_token());
            finished.store(true);
        });
        bool told = false;
        while (!finished.load()) {
            if (interrupted.load() && !told) {
                stop.request_stop();
                told = true;
                CliOutput::err(CliOutput::tr("Stopping after the current file\u2026 (Ctrl-C again to quit at once)"));
            }
            showProgress();
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        worker.join();
        showProgress();
    }
    CliOutput::endStatus();

    const QJsonObject json = report.toJson();
    CliOutput::printJson(json, parser.isSet(pretty));
    if (report.stoppedBecause == ArchiveReport::StopReason::driveDisconnected)
        CliOutput::err(CliOutput::tr("The drive went away: %1 of %2 events were kept completely. Plug it back in "
                                     "and run keep again to finish.")
                           .arg(report.completeEvents())
                           .arg(report.plannedEvents));
    if (report.cancelled)
        return 130;
    return report.failedFiles.empty() ? 0 : 1;
}

} // namespace KeepCommand
