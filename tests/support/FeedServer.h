// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace lorva::test {

/// A web server on this computer that answers each path as it is told, however badly.
class FeedServer
{
public:
    /// Writes to the connection, which has sent one request.
    using Answer = std::function<void(QTcpSocket &)>;

    explicit FeedServer(std::map<QByteArray, Answer> answers,
                        std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>())
        : m_server(std::move(server))
        , m_answers(std::move(answers))
    {
        m_server->listen(QHostAddress::LocalHost);
        QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(),
                         [this] { take(m_server->nextPendingConnection()); });
    }

    QUrl address(const char *scheme = "http", const char *path = "/feed") const
    {
        return QUrl(QStringLiteral("%1://127.0.0.1:%2%3")
                        .arg(QLatin1String(scheme))
                        .arg(m_server->serverPort())
                        .arg(QLatin1String(path)));
    }

    /// As they came, each to its empty line.
    QList<QByteArray> requests;
    /// Those that are open now.
    int connections = 0;

private:
    void take(QTcpSocket *socket)
    {
        ++connections;
        const auto request = std::make_shared<QByteArray>();
        QObject::connect(socket, &QTcpSocket::disconnected, m_server.get(), [this, socket] {
            --connections;
            socket->deleteLater();
        });
        QObject::connect(socket, &QTcpSocket::readyRead, m_server.get(), [this, socket, request] {
            *request += socket->readAll();
            if (!request->endsWith("\r\n\r\n"))
                return;
            requests << std::exchange(*request, {});
            const auto answer = m_answers.find(requests.last().split(' ').value(1));
            if (answer != m_answers.end())
                answer->second(*socket);
        });
    }

    const std::unique_ptr<QTcpServer> m_server;
    const std::map<QByteArray, Answer> m_answers;
};

/// Writes these bytes and closes.
inline FeedServer::Answer raw(const QByteArray &bytes)
{
    return [bytes](QTcpSocket &socket) {
        socket.write(bytes);
        socket.disconnectFromHost();
    };
}

inline FeedServer::Answer answer(const QByteArray &status, const QByteArray &body,
                                 const QByteArray &headers = {})
{
    return raw("HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
               + "\r\n" + headers + "\r\n" + body);
}

inline FeedServer::Answer redirect(const QByteArray &to, const QByteArray &headers = {})
{
    return answer("302 Found", "elsewhere", "Location: " + to + "\r\n" + headers);
}

/// Writes the beginning and then the chunk, whenever the last one has gone, for ever.
inline FeedServer::Answer endless(const QByteArray &beginning, const QByteArray &chunk)
{
    return [=](QTcpSocket &socket) {
        QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket,
                         [&socket, chunk] { socket.write(chunk); });
        socket.write(beginning);
    };
}

/// Likewise, but a byte now and then.
inline FeedServer::Answer drip(const QByteArray &beginning)
{
    return [=](QTcpSocket &socket) {
        auto *timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write("x"); });
        timer->start(1);
        socket.write(beginning);
    };
}

} // namespace lorva::test
