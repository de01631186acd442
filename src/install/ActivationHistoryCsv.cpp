// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/ActivationHistory.h"

#include <algorithm>

namespace lorva {

namespace {

/// A run of a whole library would otherwise repeat thousands of names in each of its lines.
constexpr qsizetype kMostNames = 5;

/// Spreadsheets run what begins like this, in wide letters too.
bool looksLikeFormula(const QString &text)
{
    static constexpr QStringView kBeginnings = u"=+-@\t\r\n\uFF1D\uFF0B\uFF0D\uFF20";
    return !text.isEmpty() && kBeginnings.contains(text.front());
}

/// RFC 4180, section 2, rules 5 to 7.
QByteArray cell(QString text)
{
    if (looksLikeFormula(text))
        text.prepend(u'\'');
    const bool needsQuotes = std::ranges::any_of(text, [](QChar letter) {
        return letter == u',' || letter == u'"' || letter == u'\r' || letter == u'\n';
    });
    if (!needsQuotes)
        return text.toUtf8();
    text.replace(u'"', QLatin1String("\"\""));
    return QString(u'"' % text % u'"').toUtf8();
}

QByteArray row(std::initializer_list<QString> texts)
{
    QByteArray line;
    for (const QString &text : texts) {
        if (!line.isEmpty())
            line.append(',');
        line.append(cell(text));
    }
    return line.append("\r\n");
}

QString namesOf(const QStringList &families)
{
    if (families.size() <= kMostNames)
        return families.join(QLatin1String(", "));
    return QStringLiteral("%1, and %2 more")
        .arg(families.first(kMostNames).join(QLatin1String(", ")))
        .arg(families.size() - kMostNames);
}

} // namespace

QByteArray historyAsCsv(const std::vector<ActivationHistoryEntry> &entries)
{
    QByteArray table = "when,action,destination,families,file,result,reason\r\n";
    for (const ActivationHistoryEntry &entry : entries) {
        const QString when = entry.when.toUTC().toString(Qt::ISODateWithMs);
        const QString destination =
            entry.destination ? entry.destination->displayText() : QString();
        const QString families = namesOf(entry.families);
        for (const ActivationHistoryEntry::File &file : entry.files)
            table.append(row({when, historyName(entry.action), destination, families,
                              file.path.displayText(), historyName(file.fate), file.reason}));
    }
    return table;
}

} // namespace lorva
