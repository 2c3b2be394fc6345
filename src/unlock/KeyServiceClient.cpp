#include "unlock/KeyServiceClient.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QTimer>
#include <qcoro/qcoronetworkreply.h>

#include <algorithm>
#include <memory>

using KeyService::Outcome;

namespace {

QJsonObject itemJson(const KeyServiceClient::Item &item)
{
    const Ecryptfs::KeyBlock &b = item.block;
    QJsonObject o;
    o.insert(QStringLiteral("id"), item.id);
    o.insert(QStringLiteral("vin"), b.vin);
    o.insert(QStringLiteral("key_id"), qint64(b.keyId));
    o.insert(QStringLiteral("timestamp"), qint64(b.timestamp));
    o.insert(QStringLiteral("wrapped_key"), QString::fromLatin1(b.wrappedKey.toBase64()));
    o.insert(QStringLiteral("public_key"), QString::fromLatin1(b.publicKey.toBase64()));
    return o;
}

Outcome outcomeOfItemError(const QString &error)
{
    if (error.contains(QLatin1String("ownership")))
        return Outcome::ownershipNotConfirmed;
    if (error.contains(QLatin1String("unauthor")) || error.contains(QLatin1String("expired")))
        return Outcome::signInExpired;
    return Outcome::refused;
}

std::vector<KeyServiceClient::Answer> allAs(const std::vector<KeyServiceClient::Item> &items, Outcome outcome)
{
    std::vector<KeyServiceClient::Answer> answers;
    answers.reserve(items.size());
    for (const auto &item : items)
        answers.push_back({item.id, outcome, {}});
    return answers;
}

} // namespace

KeyServiceClient::KeyServiceClient(QNetworkAccessManager &network, QUrl batchURL,
                                   std::chrono::milliseconds answerLimit)
    : network_(network), batchURL_(std::move(batchURL)), answerLimit_(answerLimit)
{
}

QCoro::Task<std::vector<KeyServiceClient::Answer>> KeyServiceClient::fetch(QByteArray token, std::vector<Item> items)
{
    std::vector<Answer> answers;
    answers.reserve(items.size());
    for (size_t start = 0; start < items.size(); start += KeyService::maxBatch) {
        const size_t end = std::min(items.size(), start + size_t(KeyService::maxBatch));
        std::vector<Item> batch(items.begin() + qsizetype(start), items.begin() + qsizetype(end));
        // Named, never a temporary of the awaited expression (g++ 12 destroys those twice).
        QCoro::Task<std::vector<Answer>> asking = fetchBatch(token, std::move(batch));
        std::vector<Answer> part = co_await asking;
        for (Answer &a : part)
            answers.push_back(std::move(a));
    }
    co_return answers;
}

QCoro::Task<KeyService::Outcome> KeyServiceClient::check(QByteArray token)
{
    // An empty batch answers nothing but whether the token is taken.
    QCoro::Task<std::vector<Answer>> asking = fetchBatch(token, std::vector<Item>());
    const std::vector<Answer> answers = co_await asking;
    co_return answers.empty() ? Outcome::key : answers.front().outcome;
}

QCoro::Task<std::vector<KeyServiceClient::Answer>> KeyServiceClient::fetchBatch(const QByteArray &token,
                                                                                 std::vector<Item> items)
{
    // For an empty batch, one stand-in answer carries a failure.
    const std::vector<Item> carriers = items.empty() ? std::vector<Item>{Item{}} : items;
    if (!KeyService::isAllowed(batchURL_))
        co_return allAs(carriers, Outcome::refused);
    if (token.isEmpty())
        co_return allAs(carriers, Outcome::notSignedIn);

    QJsonArray array;
    for (const Item &item : items)
        array.append(itemJson(item));
    QJsonObject body;
    body.insert(QStringLiteral("items"), array);

    QNetworkRequest request(batchURL_);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setRawHeader("Authorization", "Bearer " + token);
    request.setRawHeader("Accept", "application/json");
    // Never follow a redirect: the token must not travel to another host.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);

    QNetworkReply *reply = network_.post(request, QJsonDocument(body).toJson(QJsonDocument::Compact));
    std::unique_ptr<QNetworkReply, void (*)(QNetworkReply *)> owned(reply, [](QNetworkReply *r) { r->deleteLater(); });
    auto timedOut = std::make_shared<bool>(false);
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, reply, [reply, timedOut] {
        *timedOut = true;
        reply->abort();
    });
    limit.start(answerLimit_);
    co_await reply;
    limit.stop();

    if (*timedOut)
        co_return allAs(carriers, Outcome::unreachable);
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 401 || status == 403)
        co_return allAs(carriers, Outcome::signInExpired);
    if (status == 0)
        co_return allAs(carriers, Outcome::unreachable);
    if (status != 200)
        co_return allAs(carriers, Outcome::refused);

    const QJsonDocument doc = QJsonDocument::fromJson(reply->readAll());
    if (!doc.isObject() || !doc.object().value(QLatin1String("results")).isArray())
        co_return allAs(carriers, Outcome::malformedAnswer);
    QHash<QString, Answer> byID;
    for (const QJsonValue &v : doc.object().value(QLatin1String("results")).toArray()) {
        const QJsonObject o = v.toObject();
        Answer answer;
        answer.id = o.value(QLatin1String("id")).toString();
        const QJsonValue key = o.value(QLatin1String("key"));
        if (key.isString()) {
            answer.key = QByteArray::fromBase64(key.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
            answer.outcome = answer.key.size() == Ecryptfs::fileKeySize ? Outcome::key : Outcome::malformedAnswer;
            if (answer.outcome != Outcome::key)
                answer.key.clear();
        } else {
            answer.outcome = outcomeOfItemError(o.value(QLatin1String("error")).toString());
        }
        byID.insert(answer.id, answer);
    }
    std::vector<Answer> answers;
    if (items.empty())
        co_return answers;
    for (const Item &item : items)
        answers.push_back(byID.value(item.id, Answer{item.id, Outcome::malformedAnswer, {}}));
    co_return answers;
}
