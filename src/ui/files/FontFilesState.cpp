// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFilesState.h"

#include "catalog/FontVariants.h"
#include "catalog/RepresentativeStyle.h"
#include "organize/NameOrder.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontFiles)
};

/// Gathers families in any order.
class Gatherer
{
public:
    void add(const ReadFontFile &file)
    {
        if (isKnown(file))
            return;
        if (file.problem) {
            m_state.problems.push_back({file.path, {}, *file.problem});
            return;
        }
        for (const ParsedEntry &face : file.faces)
            add(face);
        for (const FamilyIdentification &each : file.identifications)
            identify(each);
    }

    FontFilesState take()
    {
        QStringList names;
        for (FontFamilyRecord &family : m_state.families) {
            sortStyles(family.styles);
            names << family.familyName;
        }
        NameOrder().sort(names);
        QHash<QString, qsizetype> places;
        for (qsizetype i = 0; i < names.size(); ++i)
            places.insert(names[i], i);
        std::ranges::sort(m_state.families, {}, [&places](const FontFamilyRecord &family) {
            return places.value(family.familyName);
        });
        return std::move(m_state);
    }

private:
    bool isKnown(const ReadFontFile &file)
    {
        const auto identity = std::pair(file.device, file.inode);
        const bool isSamePath = std::exchange(m_paths[file.path], true);
        const bool isSameFile = file.inode != 0 && std::exchange(m_files[identity], true);
        return isSamePath || isSameFile;
    }

    FontFamilyRecord &family(const QString &name)
    {
        const auto known = m_places.constFind(name);
        if (known != m_places.cend())
            return m_state.families[*known];
        m_places.insert(name, m_state.families.size());
        return m_state.families.emplace_back(FontFamilyRecord{name, {}, {}, {}, {}});
    }

    void add(const ParsedEntry &face)
    {
        FontStyleRecord style = face.style;
        const QString id = style.id;
        for (int copy = 2; std::exchange(m_ids[{face.familyName, style.id}], true); ++copy)
            style.id = QString(id % u'\n' % QString::number(copy));
        family(face.familyName).styles.push_back(std::move(style));
    }

    void identify(const FamilyIdentification &found)
    {
        if (!m_places.contains(found.familyName))
            return;
        FontFamilyRecord &known = family(found.familyName);
        if (known.scripts)
            return;
        known.scripts = found.identity.scripts;
        known.primaryScript = found.identity.primary;
        known.alternateNames = found.identity.alternates;
    }

    FontFilesState m_state;
    QHash<QString, size_t> m_places;
    QHash<std::pair<QString, QString>, bool> m_ids;
    QHash<FilePath, bool> m_paths;
    QHash<std::pair<quint64, quint64>, bool> m_files;
};

QString fileNameOf(const FilePath &path)
{
    return FilePath(path.fileName()).displayText();
}

void addFaces(const FontFamilyRecord &family, size_t index, std::vector<FontFilesRow> &rows)
{
    QHash<QString, int> namesakes;
    for (const FontStyleRecord &style : family.styles)
        ++namesakes[style.label];
    rows.push_back({FontFilesRow::Kind::heading, family.familyName, {}, index, 0});
    for (size_t i = 0; i < family.styles.size(); ++i) {
        const FontStyleRecord &style = family.styles[i];
        const bool needsFile = style.fileURL && namesakes[style.label] > 1;
        rows.push_back({FontFilesRow::Kind::face, style.label,
                        needsFile ? fileNameOf(*style.fileURL) : QString(), index, i});
    }
}

} // namespace

const FontFamilyRecord *FontFilesState::family(const QString &name) const
{
    const auto found = std::ranges::find(families, name, &FontFamilyRecord::familyName);
    return found == families.end() ? nullptr : &*found;
}

int FontFilesState::faceCount() const
{
    size_t count = 0;
    for (const FontFamilyRecord &family : families)
        count += family.styles.size();
    return int(count);
}

FontFilesState fontFilesState(std::span<const ReadFontFile> files)
{
    Gatherer gatherer;
    for (const ReadFontFile &file : files)
        gatherer.add(file);
    return gatherer.take();
}

std::vector<FontFilesRow> fontFilesRows(const FontFilesState &state)
{
    std::vector<FontFilesRow> rows;
    for (size_t i = 0; i < state.families.size(); ++i)
        addFaces(state.families[i], i, rows);
    if (!state.problems.empty())
        rows.push_back({FontFilesRow::Kind::heading, Texts::tr("Not Shown")});
    for (size_t i = 0; i < state.problems.size(); ++i) {
        const FontFilesState::Problem &problem = state.problems[i];
        rows.push_back({FontFilesRow::Kind::problem,
                        problem.name.isEmpty() ? fileNameOf(problem.path) : problem.name,
                        {},
                        i,
                        0});
    }
    return rows;
}

std::optional<size_t> firstRow(const FontFilesState &state, std::span<const FontFilesRow> rows)
{
    const FontStyleRecord *first =
        state.families.empty() ? nullptr : representativeStyle(state.families.front().styles);
    const auto isFirst = [&](const FontFilesRow &row) {
        if (row.kind != FontFilesRow::Kind::face || !first)
            return row.kind == FontFilesRow::Kind::problem;
        return row.index == 0 && &state.families.front().styles[row.style] == first;
    };
    const auto found = std::ranges::find_if(rows, isFirst);
    return found == rows.end() ? std::nullopt : std::optional(size_t(found - rows.begin()));
}

QString fontFilesTitle(const FontFilesState &state)
{
    if (state.families.size() == 1)
        return state.families.front().familyName;
    if (state.families.empty())
        return Texts::tr("Font Files");
    return Texts::tr("%n fonts", nullptr, int(state.families.size()));
}

} // namespace lorva
