// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/HelpText.h"

#include "base/TextColumns.h"

#include <QCoreApplication>

#include <utility>

namespace lorva {

namespace {

constexpr int kColumns = 80;
constexpr int kIndent = 2;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(HelpText)
};

QString indent(int columns)
{
    return QString(columns, u' ');
}

} // namespace

HelpText::HelpText(std::initializer_list<const char *> usages, int column)
    : m_column(column)
{
    //: before the ways in which a command is called, in its help
    QString before = QString(Texts::tr("Usage:") % u' ');
    const int width = displayWidth(before);
    for (const char *usage : usages) {
        const QStringList lines = wrapped(QString::fromLatin1(usage), kColumns - width);
        m_text += before % lines.join(QString(u'\n' % indent(width + kIndent))) % u'\n';
        before = indent(width);
    }
}

HelpText::HelpText(const QString &usage, int column)
    : m_column(column)
    , m_text(wrapped(usage, kColumns).join(u'\n') % u'\n')
{
}

HelpText &HelpText::paragraph(const QString &text)
{
    m_text += u'\n' % wrapped(text, kColumns).join(u'\n') % u'\n';
    return *this;
}

HelpText &HelpText::entries(std::initializer_list<Entry> entries)
{
    m_text += u'\n';
    for (const Entry &each : entries)
        add(each);
    return *this;
}

void HelpText::add(const Entry &entry)
{
    QString line = QString(indent(kIndent) % QLatin1String(entry.word));
    if (line.size() >= m_column)
        m_text += std::exchange(line, QString()) % u'\n';
    for (const QString &part : wrapped(entry.meaning, kColumns - m_column))
        m_text += padded(std::exchange(line, QString()), m_column) % part % u'\n';
}

} // namespace lorva
