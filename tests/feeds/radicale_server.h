#pragma once
// A real calendar server for the tests: Radicale, started on a free port of 127.0.0.1
// with its own storage folder and no configuration file, stopped at the end. Plain HTTP,
// or TLS with a self-signed certificate made for the test by openssl.
#include <QByteArray>
#include <QProcess>
#include <QTemporaryDir>
#include <optional>
#include <string>
#include <utility>

namespace qh::test {

class RadicaleServer {
public:
    enum class Transport { Http, SelfSignedTls };
    explicit RadicaleServer(Transport transport = Transport::Http);
    ~RadicaleServer();

    // False when Radicale (or openssl) is not installed or did not start; why() says.
    bool running() const { return running_; }
    const std::string& why() const { return why_; }

    // The calendar collection the tests fill: http://127.0.0.1:PORT/student/school/.
    std::string collection() const;
    // MKCALENDAR, PUT of one item, DELETE of one item: the HTTP status.
    int makeCalendar();
    int put(const std::string& uid, const std::string& calendarText);
    int remove(const std::string& uid);
    void stop();

private:
    int send(const QByteArray& verb, const std::string& path, const QByteArray& body);
    QTemporaryDir folder_;
    QProcess process_;
    int port_ = 0;
    bool tls_ = false, running_ = false;
    std::string why_;
};

// A certificate for 127.0.0.1 signed by itself, made by openssl in `folder`: the paths of
// the certificate and its key, or nothing when openssl failed.
std::optional<std::pair<QString, QString>> MakeSelfSignedCertificate(const QString& folder);

// A free TCP port of 127.0.0.1 at the time of asking.
int FreeLoopbackPort();

// One to-do of course "Algebra" due on `due` ("20261124"), as a school's calendar holds it.
std::string TodoCalendar(const std::string& uid, const std::string& summary, const std::string& due);

}  // namespace qh::test
