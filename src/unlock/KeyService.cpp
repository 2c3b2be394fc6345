#include "unlock/KeyService.h"

#include "model/TeslaViewer.h"

#include <QHostAddress>
#include <QSettings>

namespace KeyService {

QUrl batchURL()
{
    // Named explicitly: the command-line tool runs under another application name.
    const QSettings settings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold"));
    QString base = settings.value(settingsKey).toString().trimmed();
    if (base.isEmpty())
        base = TeslaViewer::url();
    while (base.endsWith(QLatin1Char('/')))
        base.chop(1);
    return QUrl(base + batchPath);
}

bool isAllowed(const QUrl &url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    if (url.scheme() == QLatin1String("https"))
        return true;
    if (url.scheme() != QLatin1String("http"))
        return false;
    if (url.host() == QLatin1String("localhost"))
        return true;
    const QHostAddress address(url.host());
    return !address.isNull() && address.isLoopback();
}

QString sentence(Outcome outcome)
{
    switch (outcome) {
    case Outcome::key: return {};
    case Outcome::ownershipNotConfirmed:
        return QCoreApplication::translate("KeyService",
                                           "Tesla couldn't confirm that your account owns the car that recorded "
                                           "this clip, so it can't be unlocked.");
    case Outcome::signInExpired:
        return QCoreApplication::translate("KeyService",
                                           "Your Tesla sign-in has expired. Sign in again to unlock this footage.");
    case Outcome::unreachable:
        return QCoreApplication::translate("KeyService",
                                           "Tesla's service couldn't be reached. Check your internet connection "
                                           "and try again.");
    case Outcome::refused:
        return QCoreApplication::translate("KeyService",
                                           "Tesla's service refused to unlock this clip. Try again later.");
    case Outcome::malformedAnswer:
        return QCoreApplication::translate("KeyService",
                                           "Tesla's service gave an answer Keelhold couldn't read. Try again later.");
    case Outcome::zeroKeyBlock:
        return QCoreApplication::translate("KeyService",
                                           "This clip was copied while the car was still writing it, so it can't "
                                           "be unlocked.");
    case Outcome::damagedHeader:
        return QCoreApplication::translate("KeyService", "This clip's header is damaged, so it can't be unlocked.");
    case Outcome::notSignedIn:
        return QCoreApplication::translate("KeyService", "Sign in with your Tesla account to unlock this footage.");
    case Outcome::keyDoesNotFit:
        return QCoreApplication::translate("KeyService",
                                           "The key Tesla's service sent doesn't open this clip, so it can't be "
                                           "unlocked.");
    case Outcome::unreadable:
        return QCoreApplication::translate("KeyService",
                                           "This clip couldn't be read from the drive, so it can't be unlocked.");
    }
    return {};
}

} // namespace KeyService
