// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <sodium.h>

namespace lorva::test {

/// Makers of a program, as the release feed knows them: a key pair, always the same one for a name.
class FeedMakers
{
public:
    explicit FeedMakers(char name = 'L')
    {
        const QByteArray seed(crypto_sign_SEEDBYTES, name);
        crypto_sign_seed_keypair(at(m_publicKey), at(m_secretKey), at(seed));
    }

    const QByteArray &publicKey() const { return m_publicKey; }

    QByteArray signature(const QByteArray &payload) const
    {
        QByteArray signature(crypto_sign_BYTES, 0);
        crypto_sign_detached(at(signature), nullptr, at(payload), size_t(payload.size()),
                             at(m_secretKey));
        return signature;
    }

    /// The feed with this payload.
    QByteArray feed(const QByteArray &payload) const
    {
        return R"({"payload":")" + payload.toBase64() + R"(","signature":")"
            + signature(payload).toBase64() + R"("})";
    }

    /// The feed that announces this version.
    QByteArray release(const QByteArray &version) const
    {
        return feed(R"({"format":1,"product":"vantrel.lorva","version":")" + version
                    + R"(","date":"2026-11-22","page":"https://lorva.example/news",)"
                      R"("summary":"Faster."})");
    }

private:
    static const unsigned char *at(const QByteArray &bytes)
    {
        return reinterpret_cast<const unsigned char *>(bytes.constData());
    }
    static unsigned char *at(QByteArray &bytes)
    {
        return reinterpret_cast<unsigned char *>(bytes.data());
    }

    QByteArray m_publicKey = QByteArray(crypto_sign_PUBLICKEYBYTES, 0);
    QByteArray m_secretKey = QByteArray(crypto_sign_SECRETKEYBYTES, 0);
};

} // namespace lorva::test
