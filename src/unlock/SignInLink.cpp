#include "unlock/SignInLink.h"

#include "model/TeslaViewer.h"
#include "unlock/KeyService.h"
#include "unlock/TokenHolder.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRandomGenerator>
#include <QSettings>
#include <QTimer>
#include <QUrlQuery>
#include <qcoro/qcoronetworkreply.h>

#include <memory>

namespace SignInLink {

namespace {

const QByteArray refreshMark = QByteArrayLiteral("refresh:");

QByteArray randomURLSafe(int bytes)
{
    QByteArray raw(bytes, '\0');
    QRandomGenerator::system()->generate(reinterpret_cast<quint32 *>(raw.data()),
                                         reinterpret_cast<quint32 *>(raw.data() + bytes));
    return raw.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

QCoro::Task<Tokens> post(QNetworkAccessManager &network, QJsonObject body)
{
    Tokens tokens;
    QUrl url(authBase().toString() + QStringLiteral("/token"));
    if (!KeyService::isAllowed(url)) {
        tokens.error = KeyService::sentence(KeyService::Outcome::refused);
        co_return tokens;
    }
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    QNetworkReply *reply = network.post(request, QJsonDocument(body).toJson(QJsonDocument::Compact));
    std::unique_ptr<QNetworkReply, void (*)(QNetworkReply *)> owned(reply, [](QNetworkReply *r) { r->deleteLater(); });
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, reply, &QNetworkReply::abort);
    limit.start(KeyService::answerLimit);
    co_await reply;
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QJsonObject answer = QJsonDocument::fromJson(reply->readAll()).object();
    if (status == 0) {
        tokens.error = KeyService::sentence(KeyService::Outcome::unreachable);
    } else if (status == 400 || status == 401 || status == 403) {
        tokens.error = QCoreApplication::translate("SignInLink", "Tesla didn't accept this sign-in: it may have "
                                                                 "expired or been used already. Sign in again.");
    } else if (status != 200) {
        tokens.error = KeyService::sentence(KeyService::Outcome::refused);
    } else {
        tokens.access = answer.value(QLatin1String("access_token")).toString().toUtf8();
        tokens.refresh = answer.value(QLatin1String("refresh_token")).toString().toUtf8();
        if (tokens.access.isEmpty())
            tokens.error = KeyService::sentence(KeyService::Outcome::malformedAnswer);
    }
    co_return tokens;
}

} // namespace

QUrl authBase()
{
    const QSettings settings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold"));
    QString base = settings.value(settingsKey).toString().trimmed();
    if (base.isEmpty())
        base = defaultAuthURL;
    while (base.endsWith(QLatin1Char('/')))
        base.chop(1);
    return QUrl(base);
}

QString redirectURI()
{
    return TeslaViewer::url() + QStringLiteral("/callback");
}

Attempt begin()
{
    Attempt attempt;
    attempt.verifier = randomURLSafe(48);
    attempt.state = randomURLSafe(16);
    const QByteArray challenge = QCryptographicHash::hash(attempt.verifier, QCryptographicHash::Sha256)
                                     .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
    QUrl address(authBase().toString() + QStringLiteral("/authorize"));
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("client_id"), clientID);
    query.addQueryItem(QStringLiteral("redirect_uri"), redirectURI());
    query.addQueryItem(QStringLiteral("response_type"), QStringLiteral("code"));
    query.addQueryItem(QStringLiteral("scope"), QStringLiteral("openid email offline_access"));
    query.addQueryItem(QStringLiteral("audience"), TeslaViewer::url() + QLatin1Char('/'));
    query.addQueryItem(QStringLiteral("state"), QString::fromLatin1(attempt.state));
    query.addQueryItem(QStringLiteral("code_challenge"), QString::fromLatin1(challenge));
    query.addQueryItem(QStringLiteral("code_challenge_method"), QStringLiteral("S256"));
    address.setQuery(query);
    attempt.address = address;
    return attempt;
}

std::optional<QByteArray> codeFrom(const QString &landed, const Attempt &attempt, QString *error)
{
    const QUrl url(landed.trimmed());
    const QUrlQuery query(url);
    const QUrl expected(redirectURI());
    if (!url.isValid() || url.host() != expected.host() || url.path() != expected.path()) {
        //: %1 is the web address the browser should have landed on
        *error = QCoreApplication::translate("SignInLink", "That isn't the address the browser landed on after "
                                                           "signing in: it starts with %1.")
                     .arg(redirectURI());
        return std::nullopt;
    }
    if (query.hasQueryItem(QStringLiteral("error"))) {
        *error = QCoreApplication::translate("SignInLink", "Tesla didn't complete the sign-in. Try again.");
        return std::nullopt;
    }
    if (query.queryItemValue(QStringLiteral("state")).toLatin1() != attempt.state) {
        *error = QCoreApplication::translate("SignInLink", "That address belongs to another sign-in. Use the "
                                                           "sign-in link Keelhold opened last.");
        return std::nullopt;
    }
    const QByteArray code = query.queryItemValue(QStringLiteral("code"), QUrl::FullyDecoded).toUtf8();
    if (code.isEmpty()) {
        *error = QCoreApplication::translate("SignInLink", "That address holds no sign-in code. Copy the whole "
                                                           "address from the browser.");
        return std::nullopt;
    }
    return code;
}

QCoro::Task<Tokens> exchange(QNetworkAccessManager &network, Attempt attempt, QByteArray code)
{
    QJsonObject body;
    body.insert(QStringLiteral("grant_type"), QStringLiteral("authorization_code"));
    body.insert(QStringLiteral("client_id"), clientID);
    body.insert(QStringLiteral("code"), QString::fromUtf8(code));
    body.insert(QStringLiteral("code_verifier"), QString::fromLatin1(attempt.verifier));
    body.insert(QStringLiteral("redirect_uri"), redirectURI());
    QCoro::Task<Tokens> posting = post(network, body);
    co_return co_await posting;
}

QCoro::Task<Tokens> refresh(QNetworkAccessManager &network, QByteArray refreshToken)
{
    QJsonObject body;
    body.insert(QStringLiteral("grant_type"), QStringLiteral("refresh_token"));
    body.insert(QStringLiteral("client_id"), clientID);
    body.insert(QStringLiteral("refresh_token"), QString::fromUtf8(refreshToken));
    QCoro::Task<Tokens> posting = post(network, body);
    co_return co_await posting;
}

QByteArray storedForm(const QByteArray &refreshToken)
{
    return refreshMark + refreshToken;
}

std::optional<QByteArray> refreshTokenIn(const QByteArray &stored)
{
    if (!stored.startsWith(refreshMark))
        return std::nullopt;
    return stored.mid(refreshMark.size());
}

QCoro::Task<Tokens> restore(QNetworkAccessManager &network)
{
    QCoro::Task<std::optional<QByteArray>> reading = TokenHolder::stored();
    const std::optional<QByteArray> stored = co_await reading;
    if (!stored)
        co_return Tokens{};
    const std::optional<QByteArray> refreshToken = refreshTokenIn(*stored);
    if (!refreshToken)
        co_return Tokens{*stored, {}, {}, {}};
    QCoro::Task<Tokens> renewing = refresh(network, *refreshToken);
    Tokens renewed = co_await renewing;
    // The old refresh token is spent: only its successor can renew again.
    if (!renewed.refresh.isEmpty()) {
        QCoro::Task<TokenHolder::StoreResult> storing = TokenHolder::store(storedForm(renewed.refresh));
        const TokenHolder::StoreResult stored = co_await storing;
        if (!stored.ok)
            renewed.rememberNote = stored.sentence;
    }
    co_return renewed;
}

} // namespace SignInLink
