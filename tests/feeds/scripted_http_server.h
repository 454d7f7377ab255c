#pragma once
// A web server of the test's own on 127.0.0.1, for the answers a calendar server does not
// give on demand: none at all, one too large, "not modified", and endless redirects.
#include <QByteArray>
#include <QTcpServer>
#include <string>

namespace qh::test {

class ScriptedHttpServer : public QTcpServer {
public:
    enum class Answer { Silent, Huge, NotModifiedWhenAsked, RedirectForever };
    ScriptedHttpServer(Answer kind, QByteArray calendar = {});
    std::string address() const;
    int requests = 0;
    QByteArray lastRequest;

private:
    void answer(class QTcpSocket* socket);
    Answer answer_;
    QByteArray calendar_;
};

}  // namespace qh::test
