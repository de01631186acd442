// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationFile.h"

#include "base/Json.h"
#include "model/records/RecordsJson.h"
#include "model/records/StyleCategories.h"
#include "model/stores/DisplaySettingsStore.h"
#include "model/stores/OrganizationChanges.h"

#include <QCoreApplication>

#include <algorithm>
#include <tuple>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OrganizationFile)
};

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
        in.fail(ErrorKind::invalidValue, Texts::tr("the name is empty"));
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

/// Other programs, and earlier versions, may have stored names that nobody could have typed.
QString repairedName(const QString &name, const QString &id)
{
    for (const QString &each : {name, id}) {
        if (QString cleaned = cleanedName(each); !cleaned.isEmpty())
            return cleaned;
    }
    return QStringLiteral("Untitled");
}

template <class Record>
std::vector<GroupingRow> rowsOf(const std::vector<Record> &records)
{
    std::vector<GroupingRow> rows;
    rows.reserve(records.size());
    for (const Record &record : records)
        rows.push_back({record.id, {repairedName(record.name, record.id)}, record.familyNames});
    return rows;
}

FoundryRows rowsOf(const FoundryCorrections &corrections)
{
    FoundryRows rows;
    for (auto entry = corrections.overrides.cbegin(); entry != corrections.overrides.cend();
         ++entry)
        rows.overrides.emplace(entry.key(), entry.value());
    for (auto entry = corrections.names.cbegin(); entry != corrections.names.cend(); ++entry) {
        // A foundry whose name shows nothing is shown under its own.
        if (QString cleaned = cleanedName(entry.value()); !cleaned.isEmpty())
            rows.names.emplace(entry.key(), CleanName{std::move(cleaned)});
    }
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

QString usableID(const GroupingRow &row, QSet<QString> &newIDs)
{
    const QString id = row.id.value_or(QString());
    if (!id.isEmpty() && id != kRetiredCategoryID)
        return id;
    return *newIDs.insert(newGroupingID());
}

/// Adds the ids that it makes to `newIDs`.
template <class Record>
std::vector<Record> recordsOf(const std::vector<GroupingRow> &rows, QSet<QString> &newIDs)
{
    std::vector<Record> records;
    records.reserve(rows.size());
    for (const GroupingRow &row : rows)
        records.push_back({usableID(row, newIDs), row.name.text, row.familyNames});
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

bool isColor(const QString &text)
{
    const auto isHexDigit = [](QChar c) {
        const char16_t lower = c.toLower().unicode();
        return (c >= u'0' && c <= u'9') || (lower >= u'a' && lower <= u'f');
    };
    return text.size() == 7 && text.startsWith(u'#')
        && std::all_of(text.cbegin() + 1, text.cend(), isHexDigit);
}

bool isDisplaySettingsKey(const QString &key)
{
    static const QString kPrefix = displaySettingsKey(BrowserSource::collection({}));
    return key == kSharedDisplaySettingsKey
        || (key.startsWith(kPrefix) && key.size() > kPrefix.size());
}

void dropOtherThanColors(SourceDisplaySettings &settings)
{
    for (std::optional<QString> *color :
         {&settings.customForegroundColorHex, &settings.customBackgroundColorHex,
          &settings.imageForegroundColorHex}) {
        if (*color && !isColor(**color))
            color->reset();
    }
}

/// Without what makes no sense; nothing where nothing else was said.
std::map<QString, SourceDisplaySettings> usable(
    const std::map<QString, SourceDisplaySettings> &displaySettings)
{
    std::map<QString, SourceDisplaySettings> out;
    for (const auto &[key, settings] : displaySettings) {
        SourceDisplaySettings kept = settings;
        dropOtherThanColors(kept);
        const bool saysNothing = kept != settings && kept == SourceDisplaySettings();
        if (isDisplaySettingsKey(key) && !saysNothing)
            out.emplace(key, std::move(kept));
    }
    return out;
}

Result<void> checkHeader(const QByteArray &json)
{
    const Result<Header> header = decodeJson<Header>(json);
    if (!header)
        return failure(ErrorKind::malformed, header.error().detail);
    if (header->format != kFormat)
        return failure(ErrorKind::malformed, Texts::tr("format: expected \"%1\"").arg(kFormat));
    if (header->version < 1)
        return failure(ErrorKind::malformed, Texts::tr("version: there is no such version"));
    if (header->version > OrganizationFile::kVersion)
        return failure(
            ErrorKind::unsupported,
            Texts::tr("the file is of version %1, which needs a newer Lorva").arg(header->version));
    return {};
}

} // namespace

Result<QByteArray> encodeOrganizationFile(const OrganizationFile &file, qint64 mostBytes)
{
    Document document{{kFormat, OrganizationFile::kVersion},
                      rowsOf(file.organization.collections),
                      rowsOf(file.organization.styleCategories),
                      rowsOf(file.organization.foundries),
                      file.displaySettings};
    putInNeutralOrder(document);
    QByteArray json = Indenter().indented(encodeJson(document)) + '\n';
    if (json.size() <= mostBytes)
        return json;
    return failure(ErrorKind::tooLarge,
                   Texts::tr("the organisation takes %1 bytes as a file, and no more than %2 "
                             "can be imported; the logos in display settings may be too many")
                       .arg(json.size())
                       .arg(mostBytes));
}

Result<OrganizationFile> decodeOrganizationFile(QByteArray json)
{
    // Some editors put a byte order mark before the text.
    if (json.startsWith("\xEF\xBB\xBF"))
        json.remove(0, 3);
    // First, because a later version's form is not ours to judge.
    if (const Result<void> checked = checkHeader(json); !checked)
        return tl::unexpected(checked.error());
    Result<Document> document = decodeJson<Document>(std::move(json));
    if (!document)
        return failure(ErrorKind::malformed, document.error().detail);
    OrganizationFile file{
        {{}, defaultStyleCategories(), {}}, usable(document->displaySettings), {}};
    merge({recordsOf<FontCollectionRecord>(document->collections, file.newIDs),
           recordsOf<FontStyleCategoryRecord>(document->styleCategories, file.newIDs),
           correctionsOf(document->foundries)},
          file.organization);
    return file;
}

} // namespace lorva
