// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

namespace lorva {

/// Whether something may be fetched from there: https, or http on this computer itself
/// (127.0.0.0/8, ::1, localhost); without a name or password in it. Fails with invalidValue.
Result<void> checkDownloadAddress(const QUrl &address);
/// Whether a server at `from` may send us on to `to`: besides the above never from https to http,
/// and from elsewhere never to this computer. Fails with permissionDenied.
Result<void> checkRedirect(const QUrl &from, const QUrl &to);

/// Fetches one small file, once. Of the user the server learns the program's version and the
/// address that every connection shows: no cookies, no language, no passwords.
///
/// Owns its network access, which takes a few milliseconds to make for the first https address.
/// Thread: main. Destruction at any time is silent.
class FeedDownload
{
public:
    struct Wanted
    {
        /// One that checkDownloadAddress() passes.
        QUrl address;
        QByteArray userAgent;
        qsizetype mostBytes = 0;
        /// For everything together, from the first connection to the last byte.
        std::chrono::milliseconds patience{};
    };
    /// Called once, later; the download may be destroyed in it. Fails with
    ///     cancelled         patience ended
    ///     ioFailure         no connection, or it broke off
    ///     permissionDenied  the server is not who it claims to be, or sends us where we do not go
    ///     notFound          it answers that there is no such file, or that it cannot give it
    ///     tooLarge          above mostBytes
    using Done = std::function<void(const Result<QByteArray> &)>;

    FeedDownload(Wanted wanted, Done done);
    ~FeedDownload();
    FeedDownload(const FeedDownload &) = delete;
    FeedDownload &operator=(const FeedDownload &) = delete;

private:
    void get(const QUrl &address);
    void read();
    void replyFinished();
    void followRedirect(const QUrl &target);
    Result<void> answer() const;
    void dropReply();
    void finish(Result<QByteArray> result);

    const Wanted m_wanted;
    Done m_done;
    const std::unique_ptr<QNetworkAccessManager> m_network;
    QTimer m_patience;
    QNetworkReply *m_reply = nullptr;
    QByteArray m_bytes;
    int m_redirects = 0;
};

} // namespace lorva
