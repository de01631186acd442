// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <memory>

class QTranslator;

namespace lorva::cli {

/// While one lives, texts are English, the system's reasons among them: for JSON, which says the
/// same to programs whatever language their user reads. Thread: main.
class EnglishTexts
{
public:
    EnglishTexts();
    ~EnglishTexts();
    EnglishTexts(const EnglishTexts &) = delete;
    EnglishTexts &operator=(const EnglishTexts &) = delete;

private:
    const QByteArray m_messagesBefore;
    const std::unique_ptr<QTranslator> m_translator;
};

/// One for a command that writes JSON, none for one that writes to people.
std::unique_ptr<EnglishTexts> englishFor(bool isJson);

} // namespace lorva::cli
