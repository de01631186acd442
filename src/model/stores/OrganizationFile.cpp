// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationFile.h"

#include "base/Json.h"
#include "model/records/RecordsJson.h"
#include "model/records/StyleCategories.h"
#include "model/stores/OrganizationChanges.h"

#include <algorithm>
#include <tuple>

namespace lorva {

namespace {

const QString kFormat = QStringLiteral("lorva-organization");
/// A category that earlier versions had; one that is stored under its id is emptied when it is
/// loaded.
const QString kRetiredCategoryID = QStringLiteral("rounded");

struct Header
{
    QString format;
    qint64 version = 0;
};

template <class Fields, JsonRecordOf<Header> Record>
void jsonFields(Fields &fields, Record &header)
{
    fields("format", header.format);
    fields("version", header.version);
}

/// A name on one line that is not empty.
struct CleanName
{
    QString text;
};

void readJson(JsonReader &in, CleanName &out)
{
    QString typed;
    in.read(typed);
    if (in.hasFailed())
        return;
    out.text = cleanedName(typed);
    if (out.text.isEmpty())
        in.fail(ErrorKind::invalidValue, QStringLiteral("the name is empty"));
}

void writeJson(JsonWriter &out, const CleanName &value)
{
    out.string(value.text);
}

/// A collection or a style category.
struct GroupingRow
{
    /// Whoever writes such a file by hand has none.
    std::optional<QString> id;
    CleanName name;
    QStringList familyNames;
};

template <class Fields, JsonRecordOf<GroupingRow> Record>
void jsonFields(Fields &fields, Record &row)
{
    fields("id", row.id);
    fields("name", row.name);
    fields("familyNames", row.familyNames);
}

struct FoundryRows
{
    std::map<QString, QString> overrides;
    std::map<QString, CleanName> names;
    QStringList dismissed;
};

template <class Fields, JsonRecordOf<FoundryRows> Record>
void jsonFields(Fields &fields, Record &rows)
{
    fields("overrides", rows.overrides);
    fields("names", rows.names);
    fields("dismissed", rows.dismissed);
}

struct Document
{
    Header header;
    std::vector<GroupingRow> collections;
    std::vector<GroupingRow> styleCategories;
    FoundryRows foundries;
    std::map<QString, SourceDisplaySettings> displaySettings;
};

template <class Fields, JsonRecordOf<Document> Record>
void jsonFields(Fields &fields, Record &document)
{
    jsonFields(fields, document.header);
    fields("collections", document.collections);
    fields("styleCategories", document.styleCategories);
    fields("foundries", document.foundries);
    fields("displaySettings", document.displaySettings);
}

// --- Writing ---

template <class Record>
std::vector<GroupingRow> rowsOf(const std::vector<Record> &records)
{
    std::vector<GroupingRow> rows;
    rows.reserve(records.size());
    for (const Record &record : records)
        rows.push_back({record.id, {record.name}, record.familyNames});
    return rows;
}

FoundryRows rowsOf(const FoundryCorrections &corrections)
{
    FoundryRows rows;
    for (auto entry = corrections.overrides.cbegin(); entry != corrections.overrides.cend();
         ++entry)
        rows.overrides.emplace(entry.key(), entry.value());
    for (auto entry = corrections.names.cbegin(); entry != corrections.names.cend(); ++entry)
        rows.names.emplace(entry.key(), CleanName{entry.value()});
    rows.dismissed = corrections.dismissed.values();
    rows.dismissed.sort();
    return rows;
}

/// How names sort depends on the language; their characters do not. Members of a collection keep
/// the order that the user gave them, those of a category have none.
void putInNeutralOrder(Document &document)
{
    std::sort(document.collections.begin(), document.collections.end(),
              [](const GroupingRow &a, const GroupingRow &b) {
                  return std::tie(a.name.text, *a.id) < std::tie(b.name.text, *b.id);
              });
    for (GroupingRow &category : document.styleCategories)
        category.familyNames.sort();
}

/// Copies compact JSON with its line breaks and indents.
class Indenter
{
public:
    QByteArray indented(const QByteArray &compact)
    {
        m_text.reserve(compact.size() * 2);
        for (qsizetype at = 0; at < compact.size(); ++at) {
            if (compact[at] == '"')
                at = copyString(compact, at);
            else
                take(compact[at], compact[at + 1 < compact.size() ? at + 1 : at]);
        }
        return std::exchange(m_text, {});
    }

private:
    /// Gives the place of the closing quote.
    qsizetype copyString(const QByteArray &compact, qsizetype from)
    {
        qsizetype end = from + 1;
        while (compact[end] != '"')
            end += compact[end] == '\\' ? 2 : 1;
        m_text.append(compact.constData() + from, end + 1 - from);
        return end;
    }

    void take(char c, char next)
    {
        const bool isOpening = c == '{' || c == '[';
        const bool isClosing = c == '}' || c == ']';
        if (isClosing && m_text.back() != '{' && m_text.back() != '[')
            breakLine(--m_depth);
        else if (isClosing)
            --m_depth;
        m_text.append(c);
        if (isOpening)
            ++m_depth;
        if (c == ',' || (isOpening && next != '}' && next != ']'))
            breakLine(m_depth);
        else if (c == ':')
            m_text.append(' ');
    }

    void breakLine(int depth)
    {
        m_text.append('\n');
        m_text.append(QByteArray(qsizetype(depth) * 2, ' '));
    }

    QByteArray m_text;
    int m_depth = 0;
};

// --- Reading ---

QString usableID(const GroupingRow &row)
{
    const QString id = row.id.value_or(QString());
    return id.isEmpty() || id == kRetiredCategoryID ? newGroupingID() : id;
}

template <class Record>
std::vector<Record> recordsOf(const std::vector<GroupingRow> &rows)
{
    std::vector<Record> records;
    records.reserve(rows.size());
    for (const GroupingRow &row : rows)
        records.push_back({usableID(row), row.name.text, row.familyNames});
    return records;
}

FoundryCorrections correctionsOf(const FoundryRows &rows)
{
    FoundryCorrections corrections;
    for (const auto &[family, id] : rows.overrides) {
        if (!family.isEmpty())
            corrections.overrides.insert(family, id);
    }
    for (const auto &[id, name] : rows.names) {
        if (!id.isEmpty())
            corrections.names.insert(id, name.text);
    }
    for (const QString &id : rows.dismissed) {
        if (!id.isEmpty())
            corrections.dismissed.insert(id);
    }
    return corrections;
}

Result<void> checkHeader(const QByteArray &json)
{
    const Result<Header> header = decodeJson<Header>(json);
    if (!header)
        return failure(ErrorKind::malformed, header.error().detail);
    if (header->format != kFormat)
        return failure(ErrorKind::malformed,
                       QStringLiteral("format: expected \"%1\"").arg(kFormat));
    if (header->version < 1)
        return failure(ErrorKind::malformed, QStringLiteral("version: there is no such version"));
    if (header->version > OrganizationFile::kVersion)
        return failure(ErrorKind::unsupported,
                       QStringLiteral("the file is of version %1, which needs a newer Lorva")
                           .arg(header->version));
    return {};
}

} // namespace

QByteArray encodeOrganizationFile(const OrganizationFile &file)
{
    Document document{{kFormat, OrganizationFile::kVersion},
                      rowsOf(file.organization.collections),
                      rowsOf(file.organization.styleCategories),
                      rowsOf(file.organization.foundries),
                      file.displaySettings};
    putInNeutralOrder(document);
    return Indenter().indented(encodeJson(document)) + '\n';
}

Result<OrganizationFile> decodeOrganizationFile(QByteArray json)
{
    // First, because a later version's form is not ours to judge.
    if (const Result<void> checked = checkHeader(json); !checked)
        return tl::unexpected(checked.error());
    Result<Document> document = decodeJson<Document>(std::move(json));
    if (!document)
        return failure(ErrorKind::malformed, document.error().detail);
    OrganizationFile file{{{}, defaultStyleCategories(), {}}, std::move(document->displaySettings)};
    merge({recordsOf<FontCollectionRecord>(document->collections),
           recordsOf<FontStyleCategoryRecord>(document->styleCategories),
           correctionsOf(document->foundries)},
          file.organization);
    return file;
}

} // namespace lorva
