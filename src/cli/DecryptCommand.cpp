#include "cli/DecryptCommand.h"

#include "cli/CliEvents.h"
#include "cli/CliOutput.h"
#include "cli/CliScan.h"
#include "cli/CliUnlock.h"
#include "crypt/EcryptfsReader.h"
#include "crypt/KeyStore.h"
#include "drive/DriveBoundary.h"
#include "drive/TeslaCamParser.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace DecryptCommand {

namespace {

// The plain movie inside one encrypted clip, written whole or not at all.
bool writePlain(const QString &clip, const QString &destination)
{
    const auto key = KeyRing::keyFor(clip);
    auto reader = key ? EcryptfsReader::open(clip, *key) : nullptr;
    if (!reader)
        return false;
    QSaveFile out(destination);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    QByteArray block(1 << 20, '\0');
    for (;;) {
        const int n = reader->read(reinterpret_cast<uint8_t *>(block.data()), int(block.size()));
        if (n < 0) {
            out.cancelWriting();
            return false;
        }
        if (n == 0)
            break;
        if (out.write(block.constData(), n) != n) {
            out.cancelWriting();
            return false;
        }
    }
    return out.commit();
}

} // namespace

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(CliOutput::tr(
        "Writes each encrypted clip of an event as the plain MP4 movie it holds, under the same file name, into a\n"
        "folder of your choice. Keys kept before are used first; the missing ones are fetched from Tesla's service\n"
        "with your sign-in token. Exits with 1 when only some clips could be written."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), CliOutput::tr("The TeslaCam folder, or a Vault folder, to read."));
    const QCommandLineOption eventOption(QStringLiteral("event"), CliOutput::tr("The event's id, as keelhold-cli scan prints it."),
                                        QStringLiteral("id"));
    const QCommandLineOption cameraOption(QStringLiteral("camera"), CliOutput::tr("Only this camera's clips."),
                                         QStringLiteral("camera"));
    const QCommandLineOption outputOption(QStringList{QStringLiteral("o"), QStringLiteral("output")},
                                         CliOutput::tr("The folder to write the movies into."), QStringLiteral("folder"));
    const QCommandLineOption tokenFile = CliUnlock::tokenFileOption();
    parser.addOptions({eventOption, cameraOption, outputOption, tokenFile});
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1 || !parser.isSet(eventOption) || !parser.isSet(outputOption)) {
        CliOutput::err(CliOutput::usage({QStringLiteral("keelhold-cli decrypt <folder> --event ID [--camera CAMERA] "
                                                        "-o FOLDER [--token-file FILE]")}));
        return CliOutput::usageExit;
    }
    std::optional<Camera> camera;
    if (parser.isSet(cameraOption)) {
        camera = Camera::fromRawValue(parser.value(cameraOption));
        if (!camera)
            //: %1 is the camera as typed, %2 the camera names the command takes
            return CliOutput::fail(CliOutput::tr("\u201c%1\u201d is not a camera; use one of %2.")
                            .arg(parser.value(cameraOption), CliEvents::cameraNames().join(QStringLiteral(", "))));
    }
    const QString root = CliScan::teslaCamRoot(positional.first());
    const QString folder = QDir::cleanPath(QDir::current().absoluteFilePath(parser.value(outputOption)));
    if (DriveBoundary::writesInto(root, folder).value_or(false))
        return CliOutput::fail(CliOutput::tr("Keelhold never writes to your Tesla drive, so choose a folder somewhere else."));

    QString error;
    const CliEvents::Found found = CliEvents::find(root, parser.value(eventOption), &error);
    if (!found.event)
        return CliOutput::fail(error);
    std::vector<ClipRef> clips;
    for (const ClipRef &clip : found.event->clips)
        if (clip.health == ClipHealth::encrypted && (!camera || clip.camera == *camera))
            clips.push_back(clip);
    if (clips.empty())
        //: %1 is a camera's name, such as "Front"
        return CliOutput::fail(camera ? CliOutput::tr("The %1 camera has no encrypted footage in this event.").arg(camera->displayName())
                           : CliOutput::tr("This event's footage isn't encrypted: its files are plain MP4 movies already."));

    const QByteArray token = CliUnlock::token(parser, tokenFile, &error);
    if (!error.isEmpty())
        return CliOutput::fail(error);
    const CliUnlock::KeyCheck keys = CliUnlock::ensureKeys(clips, token, found.vaultURL);
    if (!QDir().mkpath(folder))
        return CliOutput::fail(CliOutput::tr("The folder %1 can't be made.").arg(QDir::toNativeSeparators(folder)));
    int written = 0;
    bool writeFailed = false;
    for (const QString &clip : keys.unlocked) {
        const QString name = QFileInfo(clip).fileName();
        if (writePlain(clip, QDir(folder).filePath(name)))
            ++written;
        else
            writeFailed = true;
    }
    const QString where = QDir::toNativeSeparators(folder);
    const QString writeSentence = CliOutput::tr("The clips couldn't be read from the drive or written to %1.").arg(where);
    if (written == 0)
        return CliOutput::fail(keys.failures.value(0, writeSentence));
    if (written < int(clips.size())) {
        for (const QString &sentence : keys.failures)
            CliOutput::err(sentence);
        if (writeFailed)
            CliOutput::err(writeSentence);
        //: %3 is a folder
        CliOutput::err(CliOutput::tr("Wrote %1 of %2 clips to %3.").arg(written).arg(clips.size()).arg(where));
        return 1;
    }
    //: %2 is a folder
    CliOutput::err(CliOutput::tr("Wrote %1 clips to %2.").arg(written).arg(where));
    return 0;
}

} // namespace DecryptCommand
