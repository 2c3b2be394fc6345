#pragma once

#include <QColor>
#include <QObject>
#include <QStringList>
#include <QTcpServer>

// A map tile server on 127.0.0.1 for the tests: every tile is one flat
// colour. It answers from the event loop of the thread that made it.
class LocalTileServer : public QObject {
public:
    static inline const QColor colour{205, 228, 196};
    QTcpServer server;
    QStringList paths;
    QStringList userAgents;

    bool start();
    // "http://127.0.0.1:<port>/{z}/{x}/{y}.png"
    QString urlTemplate() const;
    static const QByteArray &png();
};
