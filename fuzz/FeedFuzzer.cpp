// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Any bytes as a release feed, and as what its makers signed: only the latter may ever be believed,
// and only where it is a release.
//
//     build/fuzz/fuzz/lorva_feed_fuzzer FILE
#include "platform/ReleaseFeed.h"
#include "platform/ReleaseVersion.h"

#include <sodium.h>

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace lorva;

namespace {

struct Makers
{
    std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> publicKey{};
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secretKey{};

    Makers()
    {
        const std::array<unsigned char, crypto_sign_SEEDBYTES> seed{};
        if (sodium_init() < 0
            || crypto_sign_seed_keypair(publicKey.data(), secretKey.data(), seed.data()) != 0)
            std::abort();
    }
};

QByteArray signedFeed(const Makers &makers, const QByteArray &payload)
{
    QByteArray signature(crypto_sign_BYTES, 0);
    crypto_sign_detached(reinterpret_cast<unsigned char *>(signature.data()), nullptr,
                         reinterpret_cast<const unsigned char *>(payload.constData()),
                         size_t(payload.size()), makers.secretKey.data());
    return R"({"payload":")" + payload.toBase64() + R"(","signature":")" + signature.toBase64()
        + R"("})";
}

bool isHarmless(const Release &release)
{
    const auto breaksLine = [](QChar c) { return c.category() == QChar::Other_Control; };
    return isReleaseVersion(release.version)
        && compareVersions(release.version, release.version)
        == std::optional(std::weak_ordering::equivalent)
        && release.date.isValid() && release.page.scheme() == QLatin1String("https")
        && !release.page.host().isEmpty() && release.summary.size() <= 600
        && std::none_of(release.summary.begin(), release.summary.end(), breaksLine);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Makers makers;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QByteArray key(reinterpret_cast<const char *>(makers.publicKey.data()),
                         qsizetype(makers.publicKey.size()));
    // Nobody signed these with a key that only lives here.
    if (readReleaseFeed(bytes, key))
        std::abort();
    const Result<Release> release = readReleaseFeed(signedFeed(makers, bytes), key);
    if (release && !isHarmless(*release))
        std::abort();
    return 0;
}
