// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <initializer_list>

namespace lorva::cli {

/// What a command tells of itself, laid out for a terminal of 80 columns: translators see whole
/// paragraphs and explanations, and need not count columns.
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

    HelpText &paragraph(const QString &text);
    HelpText &entries(std::initializer_list<Entry> entries);

    const QString &text() const { return m_text; }

private:
    void add(const Entry &entry);

    const int m_column;
    QString m_text;
};

/// "--help", which every command has.
HelpText::Entry helpEntry();
/// "--folder DIR", where it adds to the watched folders.
HelpText::Entry folderEntry();
/// "--missing".
HelpText::Entry missingEntry();

/// Prints the help and ends the output; gives the exit code.
int showHelp(const HelpText &help);

} // namespace lorva::cli
