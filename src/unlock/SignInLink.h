#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <qcoro/qcorotask.h>
#include <optional>

class QNetworkAccessManager;

// Signing in through the user's own browser with the viewer's OAuth client
// and PKCE: the browser opens the sign-in address, the user pastes back the
// address it lands on, and its code is exchanged for an access token and a
// refresh token. Refresh tokens are single-use: each refresh returns the
// next one, which must be kept in place of the old.
namespace SignInLink {

// The sign-in service's address; the settings may name another (tests).
inline const QString settingsKey = QStringLiteral("KHSignInURL");
inline const QString defaultAuthURL = QStringLiteral("https://auth.tesla.com/oauth2/v3");
inline const QString clientID = QStringLiteral("dashcam");
QUrl authBase();
QString redirectURI(); // the viewer's own callback

struct Attempt {
    QByteArray verifier; // kept here until the code comes back
    QByteArray state;
    QUrl address;        // to open in the browser
};
Attempt begin();

// The code in the address the browser landed on, when it answers this
// attempt; otherwise *error holds the sentence.
std::optional<QByteArray> codeFrom(const QString &landed, const Attempt &attempt, QString *error);

struct Tokens {
    QByteArray access;
    QByteArray refresh;
    QString error; // a sentence, when no access token came
    // A sentence, when a renewed sign-in couldn't be remembered again: the
    // remembered one is spent, so the next start will ask for a sign-in.
    QString rememberNote;
};
QCoro::Task<Tokens> exchange(QNetworkAccessManager &network, Attempt attempt, QByteArray code);
QCoro::Task<Tokens> refresh(QNetworkAccessManager &network, QByteArray refreshToken);

// What the secret store holds for a browser sign-in: the refresh token, marked.
QByteArray storedForm(const QByteArray &refreshToken);
std::optional<QByteArray> refreshTokenIn(const QByteArray &stored);

// The sign-in the secret store holds, made usable: a pasted token as it is;
// a refresh token spent for a new access token, its successor stored back
// in its place. Nothing when nothing is stored or the renewal failed.
QCoro::Task<Tokens> restore(QNetworkAccessManager &network);

} // namespace SignInLink
