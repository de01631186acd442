// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <tl/expected.hpp>

namespace lorva {

/// What went wrong, for code that has to choose; the words for people are in Error::detail.
enum class ErrorKind {
    notFound,
    permissionDenied,
    notRegularFile,
    tooLarge,
    truncated,
    malformed,
    unsupported,
    cancelled,
    ioFailure,
    usage,
    missingKey,
    typeMismatch,
    invalidValue,
};
/// For whoever has to tell a kind from any other number.
inline constexpr ErrorKind kLastErrorKind = ErrorKind::invalidValue;

/// One failure. `detail` is one line in the user's language without a final full stop, fit to
/// follow "lorvactl: ".
struct Error
{
    ErrorKind kind = ErrorKind::ioFailure;
    QString detail;

    bool operator==(const Error &) const = default;
};

template <class T>
using Result = tl::expected<T, Error>;

[[nodiscard]] inline tl::unexpected<Error> failure(ErrorKind kind, QString detail)
{
    return tl::unexpected<Error>(Error{kind, std::move(detail)});
}

} // namespace lorva
