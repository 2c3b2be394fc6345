#include "cli/UnlockCommand.h"

#include "cli/CliOutput.h"
#include "cli/CliUnlock.h"
#include "unlock/KeyServiceClient.h"
#include "unlock/TokenHolder.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <qcoro/qcorotask.h>

namespace UnlockCommand {

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(CliOutput::tr(
        "Checks your Tesla sign-in token with Tesla's service and remembers it in this computer's secret store, so\n"
        "that export, telemetry and decrypt can fetch the keys of your car's encrypted clips. Only the clips' key\n"
        "blocks and your car's VIN are ever sent, never video. To get the token, sign in at Tesla's dashcam viewer\n"
        "in your browser and copy it from there. Give it in a file or on standard input, never on the command\n"
        "line, where other users could read it."));
    parser.addHelpOption();
    const QCommandLineOption tokenFile = CliUnlock::tokenFileOption();
    const QCommandLineOption forget(QStringLiteral("forget"),
                                    CliOutput::tr("Remove the remembered sign-in from this computer's secret store."));
    parser.addOptions({tokenFile, forget});
    if (const auto done = CliOutput::parseArguments(parser, arguments))
        return *done;
    if (!parser.positionalArguments().isEmpty()) {
        CliOutput::err(CliOutput::tr("A token on the command line can be seen by other users of this computer, so keelhold-cli "
                          "won't take one there: put it in a file and give --token-file FILE, or --token-file - to "
                          "type it."));
        return CliOutput::usageExit;
    }
    if (parser.isSet(forget) == parser.isSet(tokenFile)) {
        CliOutput::err(CliOutput::usage({QStringLiteral("keelhold-cli unlock --token-file FILE | --forget")}));
        return CliOutput::usageExit;
    }

    if (parser.isSet(forget)) {
        const TokenHolder::StoreResult forgotten = QCoro::waitFor(TokenHolder::forgetStored());
        if (!forgotten.ok)
            return CliOutput::fail(forgotten.sentence);
        CliOutput::err(CliOutput::tr("Your Tesla sign-in is no longer remembered on this computer."));
        return 0;
    }

    QString error;
    const std::optional<QByteArray> token = CliUnlock::readTokenFile(parser.value(tokenFile), &error);
    if (!token)
        return CliOutput::fail(error);
    QNetworkAccessManager network;
    KeyServiceClient client(network);
    const KeyService::Outcome outcome = QCoro::waitFor(client.check(*token));
    if (outcome != KeyService::Outcome::key) {
        if (outcome == KeyService::Outcome::signInExpired)
            return CliOutput::fail(CliOutput::tr("Tesla's service didn't accept this sign-in token: it may have expired. Sign in again at "
                           "Tesla's dashcam viewer and copy a fresh one."));
        return CliOutput::fail(KeyService::sentence(outcome));
    }
    const TokenHolder::StoreResult remembered = QCoro::waitFor(TokenHolder::store(*token));
    if (!remembered.ok) {
        CliOutput::err(CliOutput::tr("Tesla's service accepted your sign-in, but this computer has no secret store to remember it "
                          "in: give it with --token-file to each command instead."));
        return 0;
    }
    CliOutput::err(CliOutput::tr("Tesla's service accepted your sign-in, and it is remembered in this computer's secret store."));
    return 0;
}

} // namespace UnlockCommand
