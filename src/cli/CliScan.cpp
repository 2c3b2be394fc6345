#include "cli/CliScan.h"

#include "cli/CliOutput.h"
#include "drive/ClipProber.h"
#include "base/ReadOnlyFs.h"
#include "drive/TeslaCamParser.h"

#include <QDir>
#include <QFileInfo>

extern "C" {
#include <libavutil/log.h>
}

namespace CliScan {

QString teslaCamRoot(const QString &given)
{
    const QString path = QDir::cleanPath(QDir::current().absoluteFilePath(given));
    if (QFileInfo(path).fileName() == QLatin1String("TeslaCam"))
        return path;
    for (const char *carFolder : {"SentryClips", "SavedClips", "RecentClips", "EncryptedClips"})
        if (ReadOnlyFs::stat(path + QLatin1Char('/') + QLatin1String(carFolder)).exists)
            return path;
    const QString inside = path + QStringLiteral("/TeslaCam");
    return ReadOnlyFs::stat(inside).isDirectory ? inside : path;
}

std::optional<DriveScan> read(const QString &root, std::optional<std::chrono::milliseconds> probeTimeout)
{
    try {
        DriveScan scan = TeslaCamParser::scan(root, [](const ScanProgress &p) {
            //: Scan progress; %1 says what is being read ("Reading Sentry events…"), then counts so far
            CliOutput::status(CliOutput::tr("%1 %2 folders, %3 events, %4 clips")
                                  .arg(p.phase)
                                  .arg(p.foldersScanned)
                                  .arg(p.eventsFound)
                                  .arg(p.clipsFound));
        });
        if (probeTimeout) {
            // Damaged clips are the expected case here, reported in the JSON;
            // the demuxer's own complaints about them would only be noise.
            av_log_set_level(AV_LOG_QUIET);
            scan.events = ClipProber::probeAll(scan.events, *probeTimeout, ClipProber::engineConcurrencyCap,
                                               [](int completed, int total) {
                                                   // Without a terminal, a line per clip would bury the rest.
                                                   if (!CliOutput::stderrIsTerminal() && completed % 100 != 0
                                                       && completed != total)
                                                       return;
                                                   //: Progress while each clip is opened to check it
                                                   CliOutput::status(CliOutput::tr("probing %1 of %2 clips")
                                                                         .arg(completed)
                                                                         .arg(total));
                                               });
        }
        CliOutput::endStatus();
        return scan;
    } catch (const TeslaCamParser::ParserError &e) {
        CliOutput::endStatus();
        CliOutput::err(e.errorCase() == TeslaCamParser::ParserError::rootNotFound
                           ? CliOutput::tr("There is no folder at \u201c%1\u201d. Check that the drive is plugged in "
                                           "and the path is right.")
                                 .arg(root)
                           : CliOutput::tr("\u201c%1\u201d is a file, not a folder. Give the TeslaCam folder itself.")
                                 .arg(root));
    } catch (const TeslaCamParser::ScanError &e) {
        CliOutput::endStatus();
        CliOutput::err(e.message());
    }
    return std::nullopt;
}

} // namespace CliScan
