// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <string_view>
#include <variant>
#include <vector>

namespace lorva::cli {

// What goes into a bug report. People paste it where everybody can read it, so nothing that the
// user, a font or a file has a name for may come in: values are numbers, words of our own, and
// versions that libraries and the system tell. Whoever reads it need not know the user's language:
// it is written in English.

/// Nothing is there that could be told: no such file, a preference that was never set.
struct NothingThere
{
};
using ReportDuration = std::chrono::steady_clock::duration;
using ReportValue = std::variant<NothingThere, bool, qint64, double, ReportDuration, QString>;

struct ReportEntry
{
    /// For programs and people; stays the same from version to version.
    QString key;
    ReportValue value;
};

struct ReportSection
{
    std::string_view name;
    std::vector<ReportEntry> entries;
};

/// The whole report, in the order in which it is shown. Takes as long as a scan of what the caches
/// do not know. Changes nothing on the machine; what cannot be read counts as not there.
std::vector<ReportSection> makeReport();

/// Aligned lines, and one object of objects; durations in milliseconds.
QString reportText(const std::vector<ReportSection> &report);
QByteArray reportJson(const std::vector<ReportSection> &report);

} // namespace lorva::cli
