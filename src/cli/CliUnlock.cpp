#include "cli/CliUnlock.h"

#include "cli/CliOutput.h"

#include "crypt/KeyStore.h"
#include "unlock/SignInLink.h"
#include "unlock/TokenHolder.h"
#include "unlock/Unlocker.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QNetworkAccessManager>
#include <qcoro/qcorotask.h>

#include <algorithm>
#include <cstdio>

namespace CliUnlock {

namespace {
constexpr qint64 largestToken = 64 * 1024;

} // namespace

QCommandLineOption tokenFileOption()
{
    return QCommandLineOption(
        QStringLiteral("token-file"),
        CliOutput::tr("A file holding your Tesla sign-in token, or - to read it from standard input. Without it, the token "
           "keelhold-cli unlock remembered is used."),
        QStringLiteral("file"));
}

std::optional<QByteArray> readTokenFile(const QString &source, QString *error)
{
    const bool fromStdin = source == QLatin1String("-");
    QFile file(fromStdin ? QString() : source);
    const bool opened = fromStdin ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!opened) {
        *error = CliOutput::tr("The token file %1 can't be read.").arg(source);
        return std::nullopt;
    }
    const QByteArray token = TokenHolder::cleaned(file.read(largestToken + 1));
    if (token.size() > largestToken || token.isEmpty() || token.contains('\n')) {
        *error = fromStdin ? CliOutput::tr("Standard input holds no sign-in token.") : CliOutput::tr("The file %1 holds no sign-in token.").arg(source);
        return std::nullopt;
    }
    return token;
}

QByteArray token(const QCommandLineParser &parser, const QCommandLineOption &option, QString *error)
{
    if (parser.isSet(option))
        return readTokenFile(parser.value(option), error).value_or(QByteArray());
    QNetworkAccessManager network;
    const SignInLink::Tokens restored = QCoro::waitFor(SignInLink::restore(network));
    if (!restored.rememberNote.isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(restored.rememberNote));
    return restored.access;
}

QString unlockOrSay(const QCommandLineParser &parser, const QCommandLineOption &option,
                    const std::vector<ClipRef> &clips, const QString &vaultURL)
{
    QString error;
    const QByteArray held = token(parser, option, &error);
    if (!error.isEmpty())
        return error;
    const KeyCheck keys = ensureKeys(clips, held, vaultURL);
    return keys.unlocked.empty() && !keys.failures.isEmpty() ? keys.failures.first() : QString();
}

KeyCheck ensureKeys(const std::vector<ClipRef> &clips, const QByteArray &token, const QString &vaultURL)
{
    KeyCheck check;
    std::vector<QString> paths;
    for (const ClipRef &clip : clips)
        if (clip.health == ClipHealth::encrypted)
            paths.push_back(clip.url);
    if (paths.empty())
        return check;
    QNetworkAccessManager network;
    Unlocker unlocker(network);
    const std::vector<Unlocker::FileOutcome> outcomes = QCoro::waitFor(unlocker.unlock(paths, token, vaultURL));
    for (const auto &o : outcomes) {
        if (o.outcome == KeyService::Outcome::key)
            check.unlocked.push_back(o.path);
        check.asked = check.asked || o.outcome == KeyService::Outcome::notSignedIn;
    }
    check.failures = Unlocker::sentences(outcomes);
    if (check.asked) // say it the command line's way
        check.failures.replace(check.failures.indexOf(KeyService::sentence(KeyService::Outcome::notSignedIn)),
                               noTokenSentence());
    return check;
}

QString noTokenSentence()
{
    return CliOutput::tr("These clips are encrypted by your car and no key for them is kept here: give your Tesla sign-in token "
              "with --token-file, or run keelhold-cli unlock first.");
}

} // namespace CliUnlock
