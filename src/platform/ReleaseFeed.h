// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "platform/UpdaterController.h"

#include <QByteArray>

namespace lorva {

/// \file
/// The feed in which releases are announced: one JSON document of two strings in Base64.
///
///     {"payload": "…", "signature": "…"}
///
/// "signature" is the makers' Ed25519 signature (64 bytes) of the payload's bytes, which are JSON
/// again, in UTF-8:
///
///     {
///       "format": 1,                              the meaning of what follows
///       "product": "vantrel.lorva",
///       "version": "1.2.0",                       see ReleaseVersion.h
///       "date": "2026-11-22",
///       "page": "https://…",                      https, at most 2,048 characters, nobody's name
///       "summary": "Faster, and quieter."         may be left out; shown on one line
///     }
///
/// Other keys are passed over, so that they can be added. A change that older programs must not
/// misread takes another format number. scripts/sign-release-feed writes feeds.
///
/// Who stands between can keep a new feed from the user, or repeat an old one, but never announce
/// anything in the makers' name.

/// More is no feed; in bytes.
constexpr qsizetype kLargestReleaseFeed = qsizetype(64) * 1024;

/// The 32 bytes of an Ed25519 key from their Base64; fails with invalidValue.
Result<QByteArray> readReleaseFeedKey(const QByteArray &base64);

/// The release that `feed` announces. Nothing of the payload is looked at before its signature by
/// the owner of `publicKey` (32 bytes) has been verified. The summary comes without control and
/// direction characters, and cut to 600 characters. Thread: any.
///
/// Fails with
///     tooLarge      above kLargestReleaseFeed
///     malformed     it is no feed, or what was signed misses something
///     invalidValue  it is not signed by the owner of the key
///     unsupported   its format is unknown: it is made for a newer Lorva
///     typeMismatch  it announces another product
Result<Release> readReleaseFeed(const QByteArray &feed, const QByteArray &publicKey);

} // namespace lorva
