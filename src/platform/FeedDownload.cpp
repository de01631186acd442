// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/FeedDownload.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <utility>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FeedDownload)
};

constexpr int kMostRedirects = 3;

bool isHttps(const QUrl &address)
{
    return address.scheme() == QLatin1String("https");
}

bool isThisComputer(const QUrl &address)
{
    const QString host = address.host();
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

int statusOf(const QNetworkReply &reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

QNetworkRequest request(const QUrl &address, const QByteArray &userAgent)
{
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute})
        request.setAttribute(attribute, QNetworkRequest::Manual);
    // Offered in clear text it brings headers of its own.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setRawHeader("User-Agent", userAgent);
    request.setRawHeader("Accept", "application/json");
    // A few bytes that are packed may unpack to any number.
    request.setRawHeader("Accept-Encoding", "identity");
    // Else Qt tells the user's language.
    request.setRawHeader("Accept-Language", "*");
    return request;
}

tl::unexpected<Error> connectionFailure(const QNetworkReply &reply)
{
    const bool isImpostor = reply.error() == QNetworkReply::SslHandshakeFailedError;
    return failure(isImpostor ? ErrorKind::permissionDenied : ErrorKind::ioFailure,
                   Texts::tr("cannot read the release feed: %1").arg(reply.errorString()));
}

tl::unexpected<Error> noFile(int status)
{
    return failure(
        ErrorKind::notFound,
        Texts::tr("the release server gives no feed: it answers with status %1").arg(status));
}

} // namespace

Result<void> checkDownloadAddress(const QUrl &address)
{
    const bool isHttp = address.scheme() == QLatin1String("http");
    if (!address.isValid() || address.host().isEmpty() || (!isHttp && !isHttps(address)))
        return failure(ErrorKind::invalidValue,
                       Texts::tr("the release feed's address is no https address"));
    if (!address.userInfo().isEmpty())
        return failure(ErrorKind::invalidValue,
                       Texts::tr("the release feed's address has a name or password in it"));
    if (isHttp && !isThisComputer(address))
        return failure(ErrorKind::invalidValue,
                       Texts::tr("the release feed's address is not secure: it must begin "
                                 "with https"));
    return {};
}

Result<void> checkRedirect(const QUrl &from, const QUrl &to)
{
    const bool isWeaker = isHttps(from) && !isHttps(to);
    const bool comesHome = isThisComputer(to) && !isThisComputer(from);
    if (!checkDownloadAddress(to) || isWeaker || comesHome)
        return failure(ErrorKind::permissionDenied,
                       Texts::tr("the release server leads to an address that is not secure"));
    return {};
}

FeedDownload::FeedDownload(Wanted wanted, Done done)
    : m_wanted(std::move(wanted))
    , m_done(std::move(done))
    , m_network(std::make_unique<QNetworkAccessManager>())
{
    m_patience.setSingleShot(true);
    QObject::connect(&m_patience, &QTimer::timeout, m_network.get(), [this] {
        finish(
            failure(ErrorKind::cancelled, Texts::tr("the release server took too long to answer")));
    });
    m_patience.start(m_wanted.patience);
    get(m_wanted.address);
}

FeedDownload::~FeedDownload()
{
    dropReply();
}

void FeedDownload::get(const QUrl &address)
{
    m_bytes.clear();
    m_reply = m_network->get(request(address, m_wanted.userAgent));
    // What is not read stays with the server.
    m_reply->setReadBufferSize(m_wanted.mostBytes + 1);
    QObject::connect(m_reply, &QNetworkReply::readyRead, m_network.get(), [this] { read(); });
    QObject::connect(m_reply, &QNetworkReply::finished, m_network.get(),
                     [this] { replyFinished(); });
}

void FeedDownload::read()
{
    m_bytes += m_reply->read(m_wanted.mostBytes + 1 - m_bytes.size());
    if (m_bytes.size() > m_wanted.mostBytes)
        finish(failure(ErrorKind::tooLarge, Texts::tr("the release feed is too large")));
}

void FeedDownload::replyFinished()
{
    read();
    if (!m_reply)
        return;
    const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!target.isEmpty() && m_reply->error() == QNetworkReply::NoError) {
        followRedirect(m_reply->url().resolved(target));
        return;
    }
    const Result<void> answered = answer();
    finish(answered ? Result<QByteArray>(std::exchange(m_bytes, {}))
                    : tl::unexpected(answered.error()));
}

void FeedDownload::followRedirect(const QUrl &target)
{
    if (++m_redirects > kMostRedirects) {
        finish(failure(ErrorKind::permissionDenied,
                       Texts::tr("the release server leads from one address to the next")));
        return;
    }
    if (const Result<void> safe = checkRedirect(m_reply->url(), target); !safe) {
        finish(tl::unexpected(safe.error()));
        return;
    }
    dropReply();
    get(target);
}

Result<void> FeedDownload::answer() const
{
    const int status = statusOf(*m_reply);
    if (status >= 400)
        return noFile(status);
    if (m_reply->error() != QNetworkReply::NoError)
        return connectionFailure(*m_reply);
    return status == 200 ? Result<void>() : noFile(status);
}

/// May be called by the reply's own signals.
void FeedDownload::dropReply()
{
    if (QNetworkReply *reply = std::exchange(m_reply, nullptr)) {
        reply->disconnect(m_network.get());
        reply->abort();
        reply->deleteLater();
    }
}

void FeedDownload::finish(Result<QByteArray> result)
{
    m_patience.stop();
    dropReply();
    QMetaObject::invokeMethod(
        m_network.get(),
        [done = std::exchange(m_done, {}), result = std::move(result)] { done(result); },
        Qt::QueuedConnection);
}

} // namespace lorva
