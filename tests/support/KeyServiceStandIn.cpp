#include "support/KeyServiceStandIn.h"

#include <QCryptographicHash>
#include <QHash>
#include <QUrl>
#include <QUrlQuery>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <future>
#include <mutex>

struct KeyServiceStandIn::State {
    mutable std::mutex mutex;
    QByteArray token;
    QHash<QByteArray, QByteArray> keys; // base64 wrapped key -> base64 file key
    Mode mode = Mode::keys;
    std::vector<Request> requests;
    // Sign-in: the codes given out with the challenge each answers, and the one refresh token good now.
    QHash<QByteArray, QByteArray> challenges;
    int issued = 0;
    QByteArray liveRefresh;
};

namespace {

QByteArray response(int status, const QByteArray &body)
{
    const char *text = status == 200 ? "OK" : status == 400 ? "Bad Request" : status == 401 ? "Unauthorized"
                                          : status == 403   ? "Forbidden"
                                                            : "Internal Server Error";
    return "HTTP/1.1 " + QByteArray::number(status) + ' ' + text
        + "\r\nContent-Type: application/json\r\nConnection: close\r\nContent-Length: "
        + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray json(const QJsonObject &o)
{
    return QJsonDocument(o).toJson(QJsonDocument::Compact);
}

} // namespace

class KeyServiceStandIn::Server {
public:
    explicit Server(std::shared_ptr<State> state) : state_(std::move(state))
    {
        std::promise<quint16> port;
        auto ready = port.get_future();
        anchor_.moveToThread(&thread_);
        thread_.start();
        QMetaObject::invokeMethod(
            &anchor_,
            [this, &port] {
                server_ = new QTcpServer;
                server_->listen(QHostAddress::LocalHost, 0);
                QObject::connect(server_, &QTcpServer::newConnection, server_, [this] { accept(); });
                port.set_value(server_->serverPort());
            },
            Qt::QueuedConnection);
        port_ = ready.get();
    }
    ~Server()
    {
        QMetaObject::invokeMethod(&anchor_, [this] { delete server_; }, Qt::BlockingQueuedConnection);
        thread_.quit();
        thread_.wait();
    }
    quint16 port() const { return port_; }

private:
    void accept()
    {
        while (QTcpSocket *socket = server_->nextPendingConnection()) {
            socket->setParent(server_);
            auto buffer = std::make_shared<QByteArray>();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket, buffer] {
                buffer->append(socket->readAll());
                const qsizetype end = buffer->indexOf("\r\n\r\n");
                if (end < 0)
                    return;
                const QByteArray head = buffer->left(end);
                qsizetype length = 0;
                for (const QByteArray &line : head.split('\n'))
                    if (line.toLower().startsWith("content-length:"))
                        length = line.mid(15).trimmed().toLongLong();
                if (buffer->size() < end + 4 + length)
                    return;
                const QByteArray reply = answer(head, buffer->mid(end + 4, length));
                buffer->clear();
                if (!reply.isEmpty()) {
                    socket->write(reply);
                    socket->disconnectFromHost();
                }
            });
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    }

    QByteArray answer(const QByteArray &head, const QByteArray &body)
    {
        std::lock_guard lock(state_->mutex);
        Request request;
        const QList<QByteArray> lines = head.split('\n');
        request.path = lines.value(0).split(' ').value(1);
        for (const QByteArray &line : lines)
            if (line.toLower().startsWith("authorization:"))
                request.authorised = !state_->token.isEmpty() && line.mid(14).trimmed() == "Bearer " + state_->token;
        const QJsonArray items = QJsonDocument::fromJson(body).object().value(QLatin1String("items")).toArray();
        request.items = int(items.size());
        if (!items.isEmpty())
            request.vinOfFirst = items.first().toObject().value(QLatin1String("vin")).toString().toLatin1();
        state_->requests.push_back(request);

        if (request.path.startsWith("/oauth2/v3/"))
            return signIn(request.path, QJsonDocument::fromJson(body).object());

        switch (state_->mode) {
        case Mode::silent: return {};
        case Mode::status401: return response(401, R"({"error":"unauthorized"})");
        case Mode::status403: return response(403, R"({"error":"forbidden"})");
        case Mode::status500: return response(500, R"({"error":"internal"})");
        case Mode::malformed: return response(200, R"({"resu)");
        case Mode::keys: break;
        }
        if (request.path != "/api/1/decrypt/batch")
            return response(400, R"({"error":"not found"})");
        if (!request.authorised)
            return response(401, R"({"error":"invalid token"})");
        if (items.size() > 30)
            return response(400, R"({"error":"batch size exceeds maximum of 30"})");
        QJsonArray results;
        for (const QJsonValue &item : items) {
            const auto key = state_->keys.constFind(item[QLatin1String("wrapped_key")].toString().toLatin1());
            QJsonObject result{{QStringLiteral("id"), item[QLatin1String("id")]}};
            if (key != state_->keys.constEnd())
                result.insert(QStringLiteral("key"), QString::fromLatin1(*key));
            else
                result.insert(QStringLiteral("error"), QStringLiteral("error.unable_to_verify_ownership"));
            results.append(result);
        }
        return response(200, json({{QStringLiteral("results"), results}}));
    }

    // authorize: back to the redirect address with a code, as the browser lands after a sign-in;
    // token: the code (with its verifier) or a refresh token for the tokens.
    QByteArray signIn(const QByteArray &target, const QJsonObject &body)
    {
        const QUrl url(QString::fromLatin1(target));
        if (url.path() == QLatin1String("/oauth2/v3/authorize")) {
            const QUrlQuery query(url);
            const QByteArray code = "code-" + QByteArray::number(++state_->issued);
            state_->challenges.insert(code, query.queryItemValue(QStringLiteral("code_challenge")).toLatin1());
            QUrl landing(query.queryItemValue(QStringLiteral("redirect_uri"), QUrl::FullyDecoded));
            QUrlQuery back;
            back.addQueryItem(QStringLiteral("code"), QString::fromLatin1(code));
            back.addQueryItem(QStringLiteral("state"), query.queryItemValue(QStringLiteral("state")));
            landing.setQuery(back);
            return "HTTP/1.1 302 Found\r\nLocation: " + landing.toEncoded()
                + "\r\nConnection: close\r\nContent-Length: 0\r\n\r\n";
        }
        const QString grant = body.value(QLatin1String("grant_type")).toString();
        if (grant == QLatin1String("authorization_code")) {
            const QByteArray code = body.value(QLatin1String("code")).toString().toLatin1();
            const QByteArray verifier = body.value(QLatin1String("code_verifier")).toString().toLatin1();
            const QByteArray challenge = QCryptographicHash::hash(verifier, QCryptographicHash::Sha256)
                                             .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
            if (!state_->challenges.contains(code) || state_->challenges.take(code) != challenge)
                return response(400, R"({"error":"invalid_grant"})");
        } else if (grant == QLatin1String("refresh_token")) {
            if (state_->liveRefresh.isEmpty()
                || body.value(QLatin1String("refresh_token")).toString().toLatin1() != state_->liveRefresh)
                return response(400, R"({"error":"invalid_grant"})");
        } else {
            return response(400, R"({"error":"unsupported_grant_type"})");
        }
        state_->liveRefresh = "refresh-" + QByteArray::number(++state_->issued);
        return response(200, json({{QStringLiteral("access_token"), QString::fromLatin1(state_->token)},
                                   {QStringLiteral("refresh_token"), QString::fromLatin1(state_->liveRefresh)}}));
    }

    std::shared_ptr<State> state_;
    QThread thread_;
    QObject anchor_;
    QTcpServer *server_ = nullptr;
    quint16 port_ = 0;
};

KeyServiceStandIn::KeyServiceStandIn()
    : state_(std::make_shared<State>()), server_(std::make_unique<Server>(state_))
{
}

KeyServiceStandIn::~KeyServiceStandIn() = default;

QString KeyServiceStandIn::baseURL() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(server_->port());
}

void KeyServiceStandIn::setAcceptedToken(const QByteArray &token)
{
    std::lock_guard lock(state_->mutex);
    state_->token = token;
}

void KeyServiceStandIn::addKey(const QByteArray &wrappedKey, const QByteArray &fileKey)
{
    std::lock_guard lock(state_->mutex);
    state_->keys.insert(wrappedKey.toBase64(), fileKey.toBase64());
}

void KeyServiceStandIn::setMode(Mode mode)
{
    std::lock_guard lock(state_->mutex);
    state_->mode = mode;
}

std::vector<KeyServiceStandIn::Request> KeyServiceStandIn::requests() const
{
    std::lock_guard lock(state_->mutex);
    return state_->requests;
}

void KeyServiceStandIn::clearRequests()
{
    std::lock_guard lock(state_->mutex);
    state_->requests.clear();
}
