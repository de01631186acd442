// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

namespace lorva::test {

/// While it lives, texts come in a language of its own: what `words` has as it stands there, all
/// else between corner brackets. Thread: main.
class OtherLanguage final : public QTranslator
{
public:
    explicit OtherLanguage(QHash<QString, QString> words = {})
        : m_words(std::move(words))
    {
        QCoreApplication::installTranslator(this);
    }
    ~OtherLanguage() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        return m_words.value(text, QStringLiteral("「%1」").replace(QStringLiteral("%1"), text));
    }

private:
    const QHash<QString, QString> m_words;
};

} // namespace lorva::test
