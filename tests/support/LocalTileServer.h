#pragma once

#include <QColor>
#include <QObject>
#include <QStringList>
#include <QTcpServer>

// A map tile server on 127.0.0.1, every tile one flat colour, answering from the event loop of the thread that made it.
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
