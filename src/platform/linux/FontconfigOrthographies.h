// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/OrthographyBook.h"

#include <mutex>

namespace lorva {

/// The orthographies that fontconfig is built with; no configuration is loaded for them.
///
/// Read when first asked and kept. Thread: any.
class FontconfigOrthographies final : public OrthographyBook
{
public:
    std::shared_ptr<const std::vector<Orthography>> orthographies() const override;

private:
    mutable std::once_flag m_once;
    mutable std::shared_ptr<const std::vector<Orthography>> m_orthographies;
};

/// Fontconfig's name of a language as BCP 47 writes it: "zh-cn" → "zh-CN", "sr-latn" → "sr-Latn".
QByteArray languageTagOf(QByteArrayView fontconfigName);

} // namespace lorva
