#include "scripted_http_server.h"

#include <QSslSocket>
#include <QTcpSocket>

namespace qh::test {

ScriptedHttpServer::ScriptedHttpServer(Answer kind, QByteArray calendar, std::optional<QSslConfiguration> tls)
    : tls_(std::move(tls)), answer_(kind), calendar_(std::move(calendar)) {
    listen(QHostAddress::LocalHost, 0);
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = nextPendingConnection()) {
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                socket->setProperty("request", socket->property("request").toByteArray() + socket->readAll());
                if (socket->property("request").toByteArray().contains("\r\n\r\n")) this->answer(socket);
            });
        }
    });
}

void ScriptedHttpServer::incomingConnection(qintptr descriptor) {
    if (!tls_) return QTcpServer::incomingConnection(descriptor);
    auto* socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    socket->setSslConfiguration(*tls_);
    socket->startServerEncryption();
    addPendingConnection(socket);
}

std::string ScriptedHttpServer::address() const {
    return (tls_ ? "https" : "http") + std::string("://127.0.0.1:") + std::to_string(serverPort()) + "/school.ics";
}

void ScriptedHttpServer::answer(QTcpSocket* socket) {
    ++requests;
    lastRequest = socket->property("request").toByteArray();
    socket->setProperty("request", QByteArray());
    switch (answer_) {
        case Answer::Silent: return;
        case Answer::Huge: {
            const QByteArray body(30 * 1024 * 1024, 'x');
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/calendar\r\nContent-Length: " +
                          QByteArray::number(body.size()) + "\r\n\r\n" + body);
            return;
        }
        case Answer::NotModifiedWhenAsked:
            if (lastRequest.contains("If-None-Match: \"v1\"")) {
                socket->write("HTTP/1.1 304 Not Modified\r\nETag: \"v1\"\r\nContent-Length: 0\r\n\r\n");
            } else {
                socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/calendar\r\nETag: \"v1\"\r\nContent-Length: " +
                              QByteArray::number(calendar_.size()) + "\r\n\r\n" + calendar_);
            }
            return;
        case Answer::RedirectTo:
            socket->write("HTTP/1.1 302 Found\r\nLocation: " + calendar_ + "\r\nContent-Length: 0\r\n\r\n");
            return;
        case Answer::RedirectForever:
            socket->write("HTTP/1.1 302 Found\r\nLocation: /again" + QByteArray::number(requests) +
                          ".ics\r\nContent-Length: 0\r\n\r\n");
            return;
    }
}

}  // namespace qh::test
