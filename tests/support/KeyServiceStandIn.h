#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <vector>

// The car maker's key service as the tests meet it: a real HTTP server on
// 127.0.0.1 (a port of its own), on a thread of its own so a test may block
// on a child process while it answers. It speaks the service's protocol and
// holds the file keys of the synthetic encrypted files the tests write; at
// /oauth2/v3 it stands in for the sign-in service (PKCE, single-use refresh
// tokens) too.
class KeyServiceStandIn {
public:
    enum class Mode {
        keys,      // keys for the wrapped keys it holds, ownership refused for the rest
        status401, // every request: sign-in expired
        status403,
        status500,
        silent,    // reads the request, never answers
        malformed, // 200 with a body that isn't the answer
    };

    KeyServiceStandIn();
    ~KeyServiceStandIn();
    KeyServiceStandIn(const KeyServiceStandIn &) = delete;
    KeyServiceStandIn &operator=(const KeyServiceStandIn &) = delete;

    // "http://127.0.0.1:<port>"
    QString baseURL() const;
    void setAcceptedToken(const QByteArray &token);
    void addKey(const QByteArray &wrappedKey, const QByteArray &fileKey);
    void setMode(Mode mode);

    struct Request {
        QByteArray path;
        bool authorised = false; // the bearer token was the accepted one
        int items = 0;
        QByteArray vinOfFirst;
    };
    std::vector<Request> requests() const;
    void clearRequests();

private:
    struct State;
    std::shared_ptr<State> state_;
    class Server;
    std::unique_ptr<Server> server_;
};
