// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <memory>
#include <vector>

namespace lorva {

/// The characters that a language is written with.
struct Orthography
{
    /// BCP 47.
    QByteArray language;
    /// Ascending.
    std::vector<char32_t> characters;
};

/// Knows the orthographies of the world's languages. Thread: any.
class OrthographyBook
{
public:
    virtual ~OrthographyBook() = default;

    /// All of them, in the order of their tags; the same object every time. Some milliseconds the
    /// first time.
    virtual std::shared_ptr<const std::vector<Orthography>> orthographies() const = 0;
};

} // namespace lorva
