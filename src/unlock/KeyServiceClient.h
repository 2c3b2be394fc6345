#pragma once

#include "drive/EcryptfsHeader.h"
#include "unlock/KeyService.h"

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <qcoro/qcorotask.h>
#include <chrono>
#include <vector>

class QNetworkAccessManager;

// Asks the key service for the file keys of key blocks, at most 30 a
// request, each request given a time limit. Runs on the thread of the
// network manager it is given (the UI thread, or the tool's main thread);
// the token goes into the request's header and nowhere else.
class KeyServiceClient {
public:
    struct Item {
        QString id; // ours, echoed back
        Ecryptfs::KeyBlock block;
    };
    struct Answer {
        QString id;
        KeyService::Outcome outcome = KeyService::Outcome::malformedAnswer;
        QByteArray key; // 16 bytes when outcome is key
    };

    KeyServiceClient(QNetworkAccessManager &network, QUrl batchURL = KeyService::batchURL(),
                     std::chrono::milliseconds answerLimit = KeyService::answerLimit);

    // One answer per item, in item order. A request that fails costs only its own items.
    QCoro::Task<std::vector<Answer>> fetch(QByteArray token, std::vector<Item> items);
    // Whether the service takes the token: an empty batch, answered `key`
    // when accepted, or the outcome that stood in the way.
    QCoro::Task<KeyService::Outcome> check(QByteArray token);

private:
    QCoro::Task<std::vector<Answer>> fetchBatch(const QByteArray &token, std::vector<Item> items);

    QNetworkAccessManager &network_;
    QUrl batchURL_;
    std::chrono::milliseconds answerLimit_;
};
