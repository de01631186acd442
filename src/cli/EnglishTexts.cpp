// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/EnglishTexts.h"

#include <QCoreApplication>
#include <QTranslator>

#include <clocale>

namespace lorva::cli {

namespace {

/// Has an answer for every text, so that no other translator is asked.
class EnglishTranslator final : public QTranslator
{
public:
    EnglishTranslator() { m_hasSingulars = load(QStringLiteral(":/translations/lorva_en")); }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override
    {
        const QString counted =
            m_hasSingulars ? QTranslator::translate(context, source, disambiguation, n) : QString();
        return counted.isNull() ? QString::fromUtf8(source) : counted;
    }

private:
    bool m_hasSingulars = false;
};

} // namespace

EnglishTexts::EnglishTexts()
    : m_messagesBefore(std::setlocale(LC_MESSAGES, nullptr))
    , m_translator(std::make_unique<EnglishTranslator>())
{
    std::setlocale(LC_MESSAGES, "C");
    QCoreApplication::installTranslator(m_translator.get());
}

EnglishTexts::~EnglishTexts()
{
    QCoreApplication::removeTranslator(m_translator.get());
    std::setlocale(LC_MESSAGES, m_messagesBefore.constData());
}

std::unique_ptr<EnglishTexts> englishFor(bool isJson)
{
    return isJson ? std::make_unique<EnglishTexts>() : nullptr;
}

} // namespace lorva::cli
