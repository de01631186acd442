// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <initializer_list>
#include <optional>
#include <span>
#include <vector>

namespace lorva::cli {

/// An option that a command knows.
struct OptionSpec
{
    /// With its hyphens: "--folder", "-o".
    QByteArray name;
    enum class Value { none, required } value = Value::required;
};

/// The arguments of one command, as the bytes that the shell passed: file names need not be text.
///
/// "--name VALUE" and "--name=VALUE" are the same; what follows "--" is never an option.
class Arguments
{
public:
    /// Fails with usage for an unknown option and for a missing or superfluous value.
    static Result<Arguments> parse(std::span<const QByteArray> words,
                                   std::initializer_list<OptionSpec> options);

    bool has(QByteArrayView option) const;
    /// The last one given.
    std::optional<QByteArray> value(QByteArrayView option) const;
    std::vector<QByteArray> values(QByteArrayView option) const;
    const std::vector<QByteArray> &positional() const { return m_positional; }

private:
    std::vector<std::pair<QByteArray, QByteArray>> m_options;
    std::vector<QByteArray> m_positional;
};

/// A whole number within the bounds; fails with usage, naming the option.
Result<int> wholeNumber(QByteArrayView option, const QByteArray &value, int least, int most);
/// A number within the bounds; fails with usage, naming the option.
Result<double> number(QByteArrayView option, const QByteArray &value, double least, double most);
/// Text for people; fails with usage when the bytes are no UTF-8.
Result<QString> text(QByteArrayView option, const QByteArray &value);

} // namespace lorva::cli
