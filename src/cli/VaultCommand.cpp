#include "cli/VaultCommand.h"

#include "base/LogCategories.h"
#include "cli/CliOutput.h"
#include "model/JsonCoding.h"
#include "vault/VaultBrowser.h"
#include "vault/VaultIndex.h"
#include "vault/VaultVerifier.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace VaultCommand {

namespace {

const QStringList synopses{QStringLiteral("keelhold-cli vault list DIR [--pretty]"),
                           QStringLiteral("keelhold-cli vault remove DIR EVENT_ID"),
                           QStringLiteral("keelhold-cli vault verify DIR")};

QString absolute(const QString &path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

int list(const QString &vault, bool pretty)
{
    try {
        QJsonArray array;
        for (const auto &event : VaultBrowser::scanVault(vault))
            array.append(event.toJson());
        const QJsonDocument doc(array);
        CliOutput::out(pretty ? doc.toJson(QJsonDocument::Indented) : doc.toJson(QJsonDocument::Compact) + '\n');
        return 0;
    } catch (const VaultBrowser::VaultBrowserError &) {
        //: %1 is a folder
        CliOutput::err(CliOutput::tr("There is no Vault folder at %1.").arg(vault));
        return CliOutput::failureExit;
    }
}

int remove(const QString &vault, const QString &eventID)
{
    try {
        if (!VaultIndex::removeEvent(eventID, vault)) {
            //: %1 is an event's id
            CliOutput::err(CliOutput::tr("The Vault has no event \u201c%1\u201d.").arg(eventID));
            return CliOutput::failureExit;
        }
        //: %1 is an event's id
        CliOutput::err(CliOutput::tr("Moved \u201c%1\u201d to the Trash.").arg(eventID));
        return 0;
    } catch (const JsonCoding::DecodingError &) {
        //: manifest.json is a file name
        CliOutput::err(CliOutput::tr("The Vault's manifest.json can't be understood, so nothing was removed."));
    } catch (const VaultIndex::FileError &e) {
        CliOutput::err(e.message());
    }
    return CliOutput::failureExit;
}

int verify(const QString &vault)
{
    // Kept folders with no manifest: nothing vouches for them, which is no pass.
    if (!QFileInfo::exists(VaultIndex::manifestPath(vault))) {
        bool keptFolders = false;
        try {
            keptFolders = !VaultBrowser::scanVault(vault).empty();
        } catch (...) {
            KEELHOLD_LOG_CAUGHT(lcCli);
        }
        if (keptFolders) {
            //: manifest.json is a file name
            CliOutput::err(CliOutput::tr("The Vault's manifest.json is missing, so the kept events can't be checked."));
            return CliOutput::failureExit;
        }
    }
    VaultVerifier::Result result;
    try {
        result = VaultVerifier::verify(vault);
    } catch (const JsonCoding::DecodingError &) {
        //: manifest.json is a file name
        CliOutput::err(CliOutput::tr("The Vault's manifest.json can't be understood, so nothing could be checked."));
        return CliOutput::failureExit;
    } catch (const VaultIndex::FileError &e) {
        CliOutput::err(e.message());
        return CliOutput::failureExit;
    }
    // Each line starts with the verdict in a column as wide as the widest.
    //: vault verify: the verdict on an event whose files all match, in capitals like the others
    const QString ok = CliOutput::tr("OK");
    //: vault verify: the verdict on an event with a file changed, missing or unreadable
    const QString differs = CliOutput::tr("DIFFERS");
    //: vault verify: the verdict on an event that was kept only in part
    const QString incomplete = CliOutput::tr("INCOMPLETE");
    const qsizetype column = std::max({ok.size(), differs.size(), incomplete.size()});
    const QString separator = QStringLiteral(", ");
    bool allGood = true;
    QByteArray text;
    for (const EventCheck &r : result.events) {
        const QString label = (!r.changed.isEmpty() || !r.missing.isEmpty() || !r.unreadable.isEmpty() ? differs
                               : r.incomplete()                                                     ? incomplete
                                                                                                    : ok)
                                  .leftJustified(column);
        //: vault verify: how many of an event's files matched their record
        QStringList counts{CliOutput::tr("%1 verified").arg(r.verified),
                           //: vault verify: how many of an event's files differ from their record
                           CliOutput::tr("%1 changed").arg(r.changed.size()),
                           //: vault verify: how many of an event's files are gone
                           CliOutput::tr("%1 missing").arg(r.missing.size())};
        if (!r.unreadable.isEmpty())
            //: vault verify: how many of an event's files couldn't be read
            counts << CliOutput::tr("%1 unreadable").arg(r.unreadable.size());
        // A keep cut off partway: what is there may be sound, but it is not all.
        if (r.incomplete())
            counts << CliOutput::tr("incomplete (%1 of %2 files kept)").arg(r.keptFiles).arg(*r.expectedFiles);
        QStringList named;
        for (const auto &n : r.changed)
            //: vault verify: %1 is the name of a file that differs from its record
            named << CliOutput::tr("changed %1").arg(n);
        for (const auto &n : r.missing)
            //: vault verify: %1 is the name of a file that is gone
            named << CliOutput::tr("missing %1").arg(n);
        for (const auto &n : r.unreadable)
            //: vault verify: %1 is the name of a file that couldn't be read
            named << CliOutput::tr("unreadable %1").arg(n);
        const QString line = named.isEmpty()
            //: One line of vault verify: %1 the verdict, %2 the event's id, %3 the counts
            ? CliOutput::tr("%1  %2: %3").arg(label, r.eventID, counts.join(separator))
            //: One line of vault verify: %1 the verdict, %2 the event's id, %3 the counts, %4 the files that differ
            : CliOutput::tr("%1  %2: %3 (%4)").arg(label, r.eventID, counts.join(separator), named.join(separator));
        text += line.toUtf8() + '\n';
        allGood = allGood && r.ok();
    }
    CliOutput::out(text);
    return allGood ? 0 : 1;
}

} // namespace

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    //: verify is a command's name; manifest.json and .keelhold-verified.json are file names
    parser.setApplicationDescription(
        CliOutput::tr("Lists, removes or re-checks the events kept in a Vault folder.\n"
                      "verify re-reads every file that manifest.json lists, judging each by the newest record that "
                      "lists it, notes the date in the Vault's .keelhold-verified.json, and exits 1 if any file "
                      "differs or is missing, or an event was kept only in part."));
    parser.addHelpOption();
    //: list, remove and verify are typed on the command line; keep them as they are
    parser.addPositionalArgument(QStringLiteral("action"), CliOutput::tr("list, remove or verify."));
    parser.addPositionalArgument(QStringLiteral("folder"), CliOutput::tr("The Vault folder."));
    const QCommandLineOption pretty(QStringLiteral("pretty"), CliOutput::tr("Indent the JSON for reading."));
    parser.addOption(pretty);
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const bool known = (action == QLatin1String("list") && positional.size() == 2)
        || (action == QLatin1String("remove") && positional.size() == 3)
        || (action == QLatin1String("verify") && positional.size() == 2);
    if (!known) {
        CliOutput::err(CliOutput::usage(synopses));
        return CliOutput::usageExit;
    }
    const QString vault = absolute(positional[1]);
    const QFileInfo folder(vault);
    if (!folder.isDir()) {
        //: %1 is a folder
        CliOutput::err(folder.exists() ? CliOutput::tr("\u201c%1\u201d is a file, not a Vault folder.").arg(vault)
                                       : CliOutput::tr("There is no Vault folder at %1.").arg(vault));
        return CliOutput::failureExit;
    }
    if (action == QLatin1String("list"))
        return list(vault, parser.isSet(pretty));
    if (action == QLatin1String("remove"))
        return remove(vault, positional[2]);
    return verify(vault);
}

} // namespace VaultCommand
