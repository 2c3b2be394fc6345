#pragma once

#include "model/ClipRef.h"

#include <QByteArray>
#include <QCommandLineOption>
#include <QString>
#include <optional>
#include <vector>

class QCommandLineParser;

// The sign-in token and the file keys for the commands that read the car's
// encrypted clips. A token comes from a file or standard input, never from
// the command line, else from the secret store where `unlock` left it.
namespace CliUnlock {

QCommandLineOption tokenFileOption();

// The token in the file ("-": standard input). On failure *error says why.
std::optional<QByteArray> readTokenFile(const QString &source, QString *error);
// The token given with --token-file, else the remembered one; empty when
// neither. On a bad --token-file, *error says why.
QByteArray token(const QCommandLineParser &parser, const QCommandLineOption &option, QString *error);

struct KeyCheck {
    std::vector<QString> unlocked; // the encrypted clips whose keys are now held
    QStringList failures;           // one sentence per kind of failure
    bool asked = false;             // a token was needed
};
// Kept keys first; the missing ones fetched with the token. Clear clips
// are passed over. vaultURL: where a kept event's keys go beside it.
KeyCheck ensureKeys(const std::vector<ClipRef> &clips, const QByteArray &token, const QString &vaultURL);

// token() and ensureKeys() for the clips a command reads: the sentence to
// fail with when none of them can be unlocked, empty when the command goes on.
QString unlockOrSay(const QCommandLineParser &parser, const QCommandLineOption &option,
                    const std::vector<ClipRef> &clips, const QString &vaultURL);

// The sentence for encrypted clips with no key held and no token to fetch one.
QString noTokenSentence();

} // namespace CliUnlock
