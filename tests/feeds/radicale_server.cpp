#include "radicale_server.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

namespace qh::test {
namespace {

// The Debian interpreter, whose modules hold Radicale, whatever python3 the PATH finds first.
const QString kPython = QStringLiteral("/usr/bin/python3");

bool runTool(const QString& program, const QStringList& arguments) {
    QProcess tool;
    tool.start(program, arguments);
    return tool.waitForFinished(60000) && tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0;
}

}  // namespace

std::optional<std::pair<QString, QString>> MakeSelfSignedCertificate(const QString& folder) {
    const QString certificate = folder + "/cert.pem", key = folder + "/key.pem";
    if (!runTool("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=127.0.0.1",
                             "-addext", "subjectAltName=IP:127.0.0.1", "-keyout", key, "-out", certificate}))
        return std::nullopt;
    return std::pair{certificate, key};
}

int FreeLoopbackPort() {
    QTcpServer probe;
    if (!probe.listen(QHostAddress::LocalHost, 0)) return 0;
    return probe.serverPort();
}

RadicaleServer::RadicaleServer(Transport transport) : tls_(transport == Transport::SelfSignedTls) {
    if (!runTool(kPython, {"-c", "import radicale"})) {
        why_ = "Radicale is not installed (apt package radicale)";
        return;
    }
    port_ = FreeLoopbackPort();
    const QString storage = folder_.filePath("collections");
    QStringList arguments{"-m", "radicale", "--config", "", "--server-hosts",
                          QStringLiteral("127.0.0.1:%1").arg(port_), "--auth-type", "none",
                          "--storage-filesystem-folder", storage};
    if (tls_) {
        const auto made = MakeSelfSignedCertificate(folder_.path());
        if (!made) {
            why_ = "openssl could not make a certificate";
            return;
        }
        arguments << "--server-ssl" << "--server-certificate" << made->first << "--server-key" << made->second;
    }
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(kPython, arguments);
    if (!process_.waitForStarted(10000)) {
        why_ = "Radicale did not start";
        return;
    }
    // Ready once its port takes a connection.
    const QDeadlineTimer deadline(20000);
    while (!deadline.hasExpired() && process_.state() == QProcess::Running) {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, quint16(port_));
        if (socket.waitForConnected(200)) {
            running_ = true;
            return;
        }
        QThread::msleep(100);
    }
    why_ = "Radicale did not listen on its port";
}

RadicaleServer::~RadicaleServer() { stop(); }

void RadicaleServer::stop() {
    if (process_.state() == QProcess::NotRunning) return;
    process_.terminate();
    if (!process_.waitForFinished(5000)) {
        process_.kill();
        process_.waitForFinished(5000);
    }
}

std::string RadicaleServer::collection() const {
    return (tls_ ? "https" : "http") + std::string("://127.0.0.1:") + std::to_string(port_) + "/student/school/";
}

int RadicaleServer::send(const QByteArray& verb, const std::string& path, const QByteArray& body) {
    QNetworkAccessManager manager;
    QNetworkRequest request(QUrl(QString::fromStdString(collection() + path)));
    request.setHeader(QNetworkRequest::ContentTypeHeader, "text/calendar; charset=utf-8");
    QNetworkReply* reply = manager.sendCustomRequest(request, verb, body);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    reply->deleteLater();
    return status;
}

int RadicaleServer::makeCalendar() {
    // Without a login there is no principal's folder to make the calendar in: it is made first.
    QNetworkAccessManager manager;
    QNetworkReply* reply = manager.sendCustomRequest(
        QNetworkRequest(QUrl(QString::fromStdString(collection()).chopped(int(std::string("school/").size())))),
        "MKCOL");
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    reply->deleteLater();
    return send("MKCALENDAR", "", {});
}

int RadicaleServer::put(const std::string& uid, const std::string& calendarText) {
    return send("PUT", uid + ".ics", QByteArray::fromStdString(calendarText));
}

int RadicaleServer::remove(const std::string& uid) { return send("DELETE", uid + ".ics", {}); }

std::string TodoCalendar(const std::string& uid, const std::string& summary, const std::string& due) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Test school//EN\r\nBEGIN:VTODO\r\nUID:" + uid +
           "\r\nDTSTAMP:20261120T080000Z\r\nSUMMARY:" + summary + "\r\nDUE;VALUE=DATE:" + due +
           "\r\nCATEGORIES:Algebra\r\nEND:VTODO\r\nEND:VCALENDAR\r\n";
}

}  // namespace qh::test
