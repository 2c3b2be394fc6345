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

namespace VaultCommand {

namespace {

const QString usage = QStringLiteral("Usage: keelhold-cli vault list DIR [--pretty]\n"
                                     "       keelhold-cli vault remove DIR EVENT_ID\n"
                                     "       keelhold-cli vault verify DIR");

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
        CliOutput::err(QStringLiteral("There is no Vault folder at %1.").arg(vault));
        return CliOutput::failureExit;
    }
}

int remove(const QString &vault, const QString &eventID)
{
    try {
        if (!VaultIndex::removeEvent(eventID, vault)) {
            CliOutput::err(QStringLiteral("The Vault has no event \u201c%1\u201d.").arg(eventID));
            return CliOutput::failureExit;
        }
        CliOutput::err(QStringLiteral("Moved \u201c%1\u201d to the Trash.").arg(eventID));
        return 0;
    } catch (const JsonCoding::DecodingError &) {
        CliOutput::err(QStringLiteral("The Vault's manifest.json can't be understood, so nothing was removed."));
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
            CliOutput::err(QStringLiteral("The Vault's manifest.json is missing, so the kept events can't be checked."));
            return CliOutput::failureExit;
        }
    }
    VaultVerifier::Result result;
    try {
        result = VaultVerifier::verify(vault);
    } catch (const JsonCoding::DecodingError &) {
        CliOutput::err(QStringLiteral("The Vault's manifest.json can't be understood, so nothing could be checked."));
        return CliOutput::failureExit;
    } catch (const VaultIndex::FileError &e) {
        CliOutput::err(e.message());
        return CliOutput::failureExit;
    }
    bool allGood = true;
    QByteArray text;
    for (const EventCheck &r : result.events) {
        const QString label = !r.changed.isEmpty() || !r.missing.isEmpty() || !r.unreadable.isEmpty()
            ? QStringLiteral("DIFFERS   ")
            : r.incomplete() ? QStringLiteral("INCOMPLETE") : QStringLiteral("OK        ");
        QString line = QStringLiteral("%1  %2: %3 verified, %4 changed, %5 missing")
                           .arg(label, r.eventID)
                           .arg(r.verified)
                           .arg(r.changed.size())
                           .arg(r.missing.size());
        if (!r.unreadable.isEmpty())
            line += QStringLiteral(", %1 unreadable").arg(r.unreadable.size());
        // A keep cut off partway: what is there may be sound, but it is not all.
        if (r.incomplete())
            line += QStringLiteral(", incomplete (%1 of %2 files kept)").arg(r.keptFiles).arg(*r.expectedFiles);
        QStringList named;
        for (const auto &n : r.changed)
            named << QStringLiteral("changed ") + n;
        for (const auto &n : r.missing)
            named << QStringLiteral("missing ") + n;
        for (const auto &n : r.unreadable)
            named << QStringLiteral("unreadable ") + n;
        if (!named.isEmpty())
            line += QStringLiteral(" (") + named.join(QStringLiteral(", ")) + QLatin1Char(')');
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
    parser.setApplicationDescription(
        QStringLiteral("Lists, removes or re-checks the events kept in a Vault folder.\n"
                       "verify re-reads every file that manifest.json lists, judging each by the newest record that "
                       "lists it, notes the date in the Vault's .keelhold-verified.json, and exits 1 if any file "
                       "differs or is missing, or an event was kept only in part."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("action"), QStringLiteral("list, remove or verify."));
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("The Vault folder."));
    const QCommandLineOption pretty(QStringLiteral("pretty"), QStringLiteral("Indent the JSON for reading."));
    parser.addOption(pretty);
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    const bool known = (action == QLatin1String("list") && positional.size() == 2)
        || (action == QLatin1String("remove") && positional.size() == 3)
        || (action == QLatin1String("verify") && positional.size() == 2);
    if (!known) {
        CliOutput::err(usage);
        return CliOutput::usageExit;
    }
    const QString vault = absolute(positional[1]);
    const QFileInfo folder(vault);
    if (!folder.isDir()) {
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
