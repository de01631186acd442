// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <initializer_list>

namespace lorva {

/// What a program or a command tells of itself, laid out for a terminal of 80 columns: translators
/// see whole paragraphs and explanations, and need not count columns.
///
/// Words in capitals, such as FAMILY, are places in the usage lines and stay as they are in every
/// language; so do words in double quotes, which the command prints, and all options.
class HelpText
{
public:
    /// An option, or another word of the command line, and what it means. Without a word the text
    /// goes on under the one before.
    struct Entry
    {
        const char *word;
        QString meaning;
    };

    /// `usages`: the ways to call it, "lorvactl list [--json]". `column`: where explanations begin.
    explicit HelpText(std::initializer_list<const char *> usages, int column = 17);
    /// `usage`: the only way to call it, where words of that are the user's, too:
    /// "Usage: lorva [options]".
    HelpText(const QString &usage, int column);

    HelpText &paragraph(const QString &text);
    HelpText &entries(std::initializer_list<Entry> entries);

    const QString &text() const { return m_text; }

private:
    void add(const Entry &entry);

    const int m_column;
    QString m_text;
};

} // namespace lorva
