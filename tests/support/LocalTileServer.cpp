#include "support/LocalTileServer.h"

#include "support/TeslaCamFixture.h"

#include <QTcpSocket>

bool LocalTileServer::start()
{
    connect(&server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                const QByteArray request = socket->readAll();
                const QList<QByteArray> lines = request.split('\n');
                const QList<QByteArray> first = lines.value(0).split(' ');
                paths << QString::fromLatin1(first.value(1));
                for (const QByteArray &l : lines)
                    if (l.toLower().startsWith("user-agent:"))
                        userAgents << QString::fromLatin1(l.mid(11).trimmed());
                socket->write("HTTP/1.1 200 OK\r\nContent-Type: image/png\r\nConnection: close\r\nContent-Length: "
                              + QByteArray::number(png().size()) + "\r\n\r\n" + png());
                socket->disconnectFromHost();
            });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
    return server.listen(QHostAddress::LocalHost);
}

QString LocalTileServer::urlTemplate() const
{
    return QStringLiteral("http://127.0.0.1:%1/{z}/{x}/{y}.png").arg(server.serverPort());
}

const QByteArray &LocalTileServer::png()
{
    static const QByteArray bytes = TeslaCamFixture::flatPng(QSize(256, 256), colour);
    return bytes;
}
