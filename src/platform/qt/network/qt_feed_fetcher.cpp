#include "platform/qt/network/qt_feed_fetcher.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslError>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <memory>

namespace qh {
namespace {

// What went wrong with a fetch, in the student's words. The address is never in it.
FeedAnswer failure(FeedAnswer::Outcome outcome, std::string why) {
    FeedAnswer answer;
    answer.outcome = outcome;
    answer.why = std::move(why);
    return answer;
}

std::string secondsText(int ms) {
    const int seconds = std::max(1, ms / 1000);
    return std::to_string(seconds) + (seconds == 1 ? " second" : " seconds");
}

std::string megabytes(std::size_t bytes) { return std::to_string(bytes / (1024 * 1024)) + " MB"; }

// The state of one fetch while its reply runs.
struct Fetch {
    FeedRequest request;
    std::string sslProblem;
    bool tooLarge = false, timedOut = false;
};

FeedAnswer answerOf(QNetworkReply& reply, const Fetch& fetch) {
    using O = FeedAnswer::Outcome;
    if (fetch.tooLarge) return failure(O::Refused, "the feed is larger than " + megabytes(fetch.request.largest));
    if (fetch.timedOut)
        return failure(O::Unreachable, "the server did not answer within " + secondsText(fetch.request.timeoutMs));
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 304) {
        FeedAnswer answer;
        answer.outcome = O::Unchanged;
        return answer;
    }
    switch (reply.error()) {
        case QNetworkReply::NoError: break;
        case QNetworkReply::SslHandshakeFailedError:
            return failure(O::Refused, "the server's certificate is not trusted" +
                                           (fetch.sslProblem.empty() ? std::string() : " (" + fetch.sslProblem + ")"));
        case QNetworkReply::InsecureRedirectError:
            return failure(O::Refused, "the feed was sent on to an address that is not secure");
        case QNetworkReply::TooManyRedirectsError:
            return failure(O::Refused, "the feed was sent on more than " + std::to_string(QtFeedFetcher::kMostRedirects) +
                                           " times");
        case QNetworkReply::ProtocolUnknownError:
            return failure(O::Refused, "the address is not a web address");
        case QNetworkReply::ConnectionRefusedError:
        case QNetworkReply::RemoteHostClosedError:
        case QNetworkReply::HostNotFoundError:
        case QNetworkReply::TimeoutError:
        case QNetworkReply::OperationCanceledError:
        case QNetworkReply::TemporaryNetworkFailureError:
        case QNetworkReply::NetworkSessionFailedError:
        case QNetworkReply::UnknownNetworkError:
        case QNetworkReply::ProxyConnectionRefusedError:
        case QNetworkReply::ProxyNotFoundError:
        case QNetworkReply::ProxyTimeoutError:
            return failure(O::Unreachable, "the server could not be reached");
        default:
            if (status != 0)
                return failure(O::Refused,
                               "the server answered " + std::to_string(status) + " " +
                                   reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString().toStdString());
            return failure(O::Refused, reply.errorString().toStdString());
    }
    FeedAnswer answer;
    answer.outcome = O::Fetched;
    const QByteArray body = reply.readAll();
    answer.body.assign(body.constData(), std::size_t(body.size()));
    answer.etag = reply.rawHeader("ETag").toStdString();
    answer.lastModified = reply.rawHeader("Last-Modified").toStdString();
    return answer;
}

}  // namespace

QtFeedFetcher::QtFeedFetcher(Runner run) : run_(std::move(run)) {
    // Cookies and a cache would keep what a private feed address returned: neither is used.
    manager_.setCookieJar(nullptr);
    manager_.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
}

void QtFeedFetcher::answer(const Answered& answered, FeedAnswer result) {
    --waiting_;
    run_([answered, result = std::move(result)] { answered(result); });
}

void QtFeedFetcher::fetch(const FeedRequest& request, Answered answered) {
    ++waiting_;
    const QUrl url(QString::fromStdString(FeedTransportAddress(request.address)), QUrl::StrictMode);
    const QString scheme = url.scheme().toLower();
    const auto refuseLater = [this, &answered](std::string why) {
        // Answered later all the same, as the interface promises.
        QTimer::singleShot(0, this, [this, answered, why = std::move(why)] {
            answer(answered, failure(FeedAnswer::Outcome::Refused, why));
        });
    };
    if (!url.isValid() || url.host().isEmpty() || (scheme != "https" && scheme != "http"))
        return refuseLater("the address is not a web address");
    // Without a TLS library every secure feed would look like a server that is down, and
    // the planner would wait quietly for it for ever: say what is missing instead.
    if (scheme == "https" && !QSslSocket::supportsSsl())
        return refuseLater("this computer has no library for secure connections");
    QNetworkRequest http(url);
    http.setMaximumRedirectsAllowed(kMostRedirects);
    http.setRawHeader("Accept", "text/calendar, */*;q=0.5");
    http.setRawHeader("User-Agent", "Quillhollow");
    if (!request.etag.empty()) http.setRawHeader("If-None-Match", QByteArray::fromStdString(request.etag));
    if (!request.lastModified.empty())
        http.setRawHeader("If-Modified-Since", QByteArray::fromStdString(request.lastModified));
    http.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    http.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);

    QNetworkReply* reply = manager_.get(http);
    auto state = std::make_shared<Fetch>();
    state->request = request;
    // The whole fetch has its time, however slowly a server trickles its bytes.
    auto* timer = new QTimer(reply);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, reply, [reply, state] {
        state->timedOut = true;
        reply->abort();
    });
    timer->start(request.timeoutMs);
    const auto checkSize = [reply, state](qint64 received, qint64 total) {
        const auto largest = qint64(state->request.largest);
        if (received > largest || total > largest) {
            state->tooLarge = true;
            reply->abort();
        }
    };
    connect(reply, &QNetworkReply::downloadProgress, reply, checkSize);
    connect(reply, &QNetworkReply::sslErrors, reply, [state](const QList<QSslError>& errors) {
        // Never ignored: the handshake fails, and the first reason is told.
        if (!errors.isEmpty() && state->sslProblem.empty()) state->sslProblem = errors.first().errorString().toStdString();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, state, answered] {
        reply->deleteLater();
        answer(answered, answerOf(*reply, *state));
    });
}

void QtFeedFetcher::settle(int ms) {
    const QDeadlineTimer deadline(ms);
    while (waiting_ > 0 && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents,
                                        int(std::max<qint64>(1, std::min<qint64>(50, deadline.remainingTime()))));
    // Answers handed on in this same pass arrive too.
    QCoreApplication::processEvents();
}

}  // namespace qh
