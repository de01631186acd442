// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Report.h"

#include "base/JsonWriter.h"
#include "cli/Console.h"
#include "cli/ReportSections.h"
#include "platform/linux/XdgFolders.h"

#include <algorithm>
#include <iterator>

namespace lorva::cli {

namespace {

double milliseconds(ReportDuration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

struct InWords
{
    QString operator()(NothingThere) const { return QStringLiteral("none"); }
    QString operator()(bool value) const
    {
        return value ? QStringLiteral("yes") : QStringLiteral("no");
    }
    QString operator()(qint64 value) const { return QString::number(value); }
    QString operator()(double value) const { return QString::number(value); }
    QString operator()(ReportDuration value) const
    {
        return QStringLiteral("%1 ms").arg(milliseconds(value), 0, 'f', 1);
    }
    QString operator()(const QString &value) const { return singleLine(value); }
};

class InJson
{
public:
    explicit InJson(JsonWriter &out)
        : m_out(out)
    {
    }

    void operator()(NothingThere) const { m_out.null(); }
    void operator()(bool value) const { m_out.boolean(value); }
    void operator()(qint64 value) const { m_out.integer(value); }
    void operator()(double value) const { m_out.number(value); }
    void operator()(ReportDuration value) const { m_out.number(milliseconds(value)); }
    void operator()(const QString &value) const { m_out.string(value); }

private:
    JsonWriter &m_out;
};

qsizetype widestKey(const std::vector<ReportSection> &report)
{
    qsizetype widest = 0;
    for (const ReportSection &section : report)
        for (const ReportEntry &entry : section.entries)
            widest = std::max(widest, entry.key.size());
    return widest;
}

void append(std::vector<ReportSection> &report, std::vector<ReportSection> sections)
{
    report.insert(report.end(), std::make_move_iterator(sections.begin()),
                  std::make_move_iterator(sections.end()));
}

} // namespace

std::vector<ReportSection> makeReport()
{
    const PlatformFolders folders = xdgFolders();
    const auto start = std::chrono::steady_clock::now();
    Examined examined{folders, lookAtPreferences(folders.applicationSupport), std::nullopt};
    const auto looked = std::chrono::steady_clock::now() - start;
    std::vector<ReportSection> report{versionSection(), environmentSection()};
    append(report, librarySections(examined, looked));
    report.push_back(doctorSection(examined));
    append(report, settingsSections(examined.preferences));
    return report;
}

QString reportText(const std::vector<ReportSection> &report)
{
    const qsizetype width = widestKey(report) + 2;
    QString text;
    for (const ReportSection &section : report) {
        text += (text.isEmpty() ? QString() : QStringLiteral("\n"))
            + QLatin1String(section.name.data(), qsizetype(section.name.size())) + u'\n';
        for (const ReportEntry &entry : section.entries)
            text += QStringLiteral("  ") + entry.key.leftJustified(width)
                + std::visit(InWords(), entry.value) + u'\n';
    }
    return text;
}

QByteArray reportJson(const std::vector<ReportSection> &report)
{
    JsonWriter out;
    out.beginObject();
    for (const ReportSection &section : report) {
        out.key(section.name);
        out.beginObject();
        for (const ReportEntry &entry : section.entries) {
            out.key(entry.key);
            std::visit(InJson(out), entry.value);
        }
        out.endObject();
    }
    out.endObject();
    return out.take() + '\n';
}

} // namespace lorva::cli
