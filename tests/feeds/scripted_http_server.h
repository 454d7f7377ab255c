#pragma once
// A web server of the test's own on 127.0.0.1, for the answers a calendar server does not
// give on demand: none at all, one too large, "not modified", endless redirects, and over
// TLS a redirect to a plain http address.
#include <QByteArray>
#include <QSslConfiguration>
#include <QTcpServer>
#include <optional>
#include <string>

namespace qh::test {

class ScriptedHttpServer : public QTcpServer {
public:
    enum class Answer { Silent, Huge, NotModifiedWhenAsked, RedirectForever, RedirectTo };
    // `calendar` is the feed, or for RedirectTo the address sent on to; `tls` serves https.
    ScriptedHttpServer(Answer kind, QByteArray calendar = {}, std::optional<QSslConfiguration> tls = {});
    std::string address() const;
    int requests = 0;
    QByteArray lastRequest;

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void answer(class QTcpSocket* socket);
    std::optional<QSslConfiguration> tls_;
    Answer answer_;
    QByteArray calendar_;
};

}  // namespace qh::test
