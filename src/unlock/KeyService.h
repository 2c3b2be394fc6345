#pragma once

#include "drive/EcryptfsHeader.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QUrl>
#include <chrono>

// Where the car maker's key service is, and the words for each way a key
// can fail to come. The service unwraps a file's key after it checks that
// the signed-in account owns the car; nothing but the key blocks is sent.
namespace KeyService {

// The service sits at the car maker's web viewer (TeslaViewer::url()) unless
// the settings name another address.
// In the settings file the app and the command-line tool share.
inline const QString settingsKey = QStringLiteral("KHKeyServiceURL");
inline const QString batchPath = QStringLiteral("/api/1/decrypt/batch");
inline constexpr int maxBatch = 30;
inline constexpr std::chrono::milliseconds answerLimit{20000};

// The service's address from the settings, else the default, with the batch path appended.
QUrl batchURL();
// HTTPS, or plain HTTP to this computer alone (tests).
bool isAllowed(const QUrl &url);

enum class Outcome {
    key,
    ownershipNotConfirmed,
    signInExpired,   // 401 or 403: "Sign in again…"
    unreachable,     // no connection, or no answer within the limit
    refused,         // any other refusal by the service
    malformedAnswer,
    zeroKeyBlock,    // never sent: the car hadn't written the key
    damagedHeader,   // never sent
    notSignedIn,     // no token given or stored
    keyDoesNotFit,   // a key came that doesn't open the file
    unreadable,      // never sent: the drive didn't give the clip's header
};

// One sentence for each outcome but `key`.
QString sentence(Outcome outcome);
// Whether signing in again could help.
inline bool asksForSignIn(Outcome o) { return o == Outcome::signInExpired || o == Outcome::notSignedIn; }

} // namespace KeyService
