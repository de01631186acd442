// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/RecordsJson.h"

#include <QCoreApplication>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RecordsJson)
};

/// What the reader itself says of the like.
struct ReaderTexts
{
    Q_DECLARE_TR_FUNCTIONS(JsonReader)
};

using SourceKind = BrowserSource::Kind;

constexpr std::pair<WritingScript, std::string_view> kScriptNames[]{
    {WritingScript::latin, "latin"},
    {WritingScript::japanese, "japanese"},
    {WritingScript::korean, "korean"},
    {WritingScript::simplifiedChinese, "simplifiedChinese"},
    {WritingScript::traditionalChinese, "traditionalChinese"},
};

constexpr std::pair<InstallMethod, std::string_view> kMethodNames[]{
    {InstallMethod::copy, "copy"},
    {InstallMethod::registerInPlace, "register"},
};

constexpr std::pair<ViewMode, std::string_view> kViewModeNames[]{
    {ViewMode::grid, "grid"},
    {ViewMode::list, "list"},
};

constexpr std::pair<SourceKind, std::string_view> kSourceNames[]{
    {SourceKind::allFonts, "allFonts"},     {SourceKind::active, "active"},
    {SourceKind::inactive, "inactive"},     {SourceKind::style, "style"},
    {SourceKind::collection, "collection"}, {SourceKind::foundry, "foundry"},
    {SourceKind::discover, "discover"},
};

constexpr std::string_view kPayloadKey = "_0";

template <class E>
QString storedNameOf(JsonNames<E> names, E value)
{
    const std::string_view name = jsonName(names, value);
    return QString::fromLatin1(name.data(), qsizetype(name.size()));
}

// --- The keys of each record, in the order in which they are written ---

template <class Fields, JsonRecordOf<FontStyleRecord> Record>
void jsonFields(Fields &fields, Record &style)
{
    fields("id", style.id);
    fields("label", style.label);
    fields("postScriptName", style.postScriptName);
    fields("weight", style.weight);
    fields("isItalic", style.isItalic);
    fields("fileURL", style.fileURL);
}

template <class Fields, JsonRecordOf<FontFamilyRecord> Record>
void jsonFields(Fields &fields, Record &family)
{
    fields("familyName", family.familyName);
    fields("styles", family.styles);
    fields("scripts", family.scripts);
    fields("primaryScript", family.primaryScript);
    fields("alternateNames", family.alternateNames);
}

template <class Record>
concept GroupingRecord = JsonRecordOf<Record, FontCollectionRecord> || JsonRecordOf<
    Record, FontStyleCategoryRecord> || JsonRecordOf<Record, FoundryCollectionRecord>;

template <class Fields, GroupingRecord Record>
void jsonFields(Fields &fields, Record &grouping)
{
    fields("id", grouping.id);
    fields("name", grouping.name);
    fields("familyNames", grouping.familyNames);
}

template <class Fields, JsonRecordOf<LogoConfiguration> Record>
void jsonFields(Fields &fields, Record &logo)
{
    fields("imageData", logo.imageData);
    fields("sizeRatio", logo.sizeRatio);
    fields("spacing", logo.spacing);
}

template <class Fields, JsonRecordOf<SourceDisplaySettings> Record>
void jsonFields(Fields &fields, Record &settings)
{
    fields("colorMode", settings.colorMode);
    fields("customForegroundColorHex", settings.customForegroundColorHex);
    fields("customBackgroundColorHex", settings.customBackgroundColorHex);
    fields("logoImageData", settings.logoImageData);
    fields("logoSizeRatio", settings.logoSizeRatio);
    fields("logoSpacing", settings.logoSpacing);
    fields("logoVisible", settings.logoVisible);
    fields("browserPointSize", settings.browserPointSize);
    fields("browserFontWeight", settings.browserFontWeight);
    fields("sampleText", settings.sampleText);
    fields("backgroundImageID", settings.backgroundImageID);
    fields("backgroundImageUserFilename", settings.backgroundImageUserFilename);
    fields("imageForegroundColorHex", settings.imageForegroundColorHex);
}

template <class T>
void readRecord(JsonReader &in, T &out)
{
    JsonFieldReader fields;
    jsonFields(fields, out);
    in.readFields(fields.fields());
}

template <class T>
void writeRecord(JsonWriter &out, const T &value)
{
    out.beginObject();
    JsonFieldWriter fields(out);
    jsonFields(fields, value);
    out.endObject();
}

// --- BrowserSource ---

/// What stands under a source's key. It is judged only once all keys are known: too many keys is
/// the first thing to be wrong.
struct SourcePayload
{
    bool isObject = false;
    bool hasId = false;
    bool isIdString = false;
    QString id;
};

SourcePayload readPayload(JsonReader &in)
{
    SourcePayload payload;
    payload.isObject = in.kind() == JsonReader::Kind::object;
    if (!payload.isObject) {
        in.skip();
        return payload;
    }
    in.readObject([&](std::string_view key) {
        if (key != kPayloadKey)
            return;
        payload.hasId = true;
        payload.isIdString = in.kind() == JsonReader::Kind::string;
        if (payload.isIdString)
            in.read(payload.id);
    });
    return payload;
}

void judgePayload(JsonReader &in, SourceKind kind, const SourcePayload &payload)
{
    const QString name = storedNameOf<SourceKind>(kSourceNames, kind);
    const QString idPlace = name + QLatin1String("._0");
    if (!payload.isObject)
        in.fail(ErrorKind::typeMismatch, ReaderTexts::tr("expected an object"), name);
    else if (!BrowserSource::namesGrouping(kind))
        return;
    else if (!payload.hasId)
        in.fail(ErrorKind::missingKey, ReaderTexts::tr("missing"), idPlace);
    else if (!payload.isIdString)
        in.fail(ErrorKind::typeMismatch, ReaderTexts::tr("expected a string"), idPlace);
}

} // namespace

void readJson(JsonReader &in, BrowserSource &out)
{
    int found = 0;
    SourceKind kind = SourceKind::allFonts;
    SourcePayload payload;
    in.readObject([&](std::string_view key) {
        const auto named = fromJsonName<SourceKind>(
            kSourceNames, QByteArrayView(key.data(), qsizetype(key.size())));
        if (!named)
            return;
        ++found;
        kind = *named;
        payload = readPayload(in);
    });
    if (in.hasFailed())
        return;
    if (found != 1) {
        in.fail(ErrorKind::typeMismatch,
                QStringLiteral("Invalid number of keys found, expected one."));
        return;
    }
    judgePayload(in, kind, payload);
    out = BrowserSource::make(kind, payload.id);
}

void writeJson(JsonWriter &out, const BrowserSource &value)
{
    out.beginObject();
    out.key(jsonName<SourceKind>(kSourceNames, value.kind()));
    out.beginObject();
    if (BrowserSource::namesGrouping(value.kind())) {
        out.key(kPayloadKey);
        out.string(value.id());
    }
    out.endObject();
    out.endObject();
}

void readJson(JsonReader &in, FontStyleRecord &out)
{
    readRecord(in, out);
}

void writeJson(JsonWriter &out, const FontStyleRecord &value)
{
    writeRecord(out, value);
}

void readJson(JsonReader &in, FontFamilyRecord &out)
{
    readRecord(in, out);
}

void writeJson(JsonWriter &out, const FontFamilyRecord &value)
{
    writeRecord(out, value);
}

void readJson(JsonReader &in, FontCollectionRecord &out)
{
    readRecord(in, out);
}

void writeJson(JsonWriter &out, const FontCollectionRecord &value)
{
    writeRecord(out, value);
}

void readJson(JsonReader &in, FontStyleCategoryRecord &out)
{
    readRecord(in, out);
}

void writeJson(JsonWriter &out, const FontStyleCategoryRecord &value)
{
    writeRecord(out, value);
}

void readJson(JsonReader &in, FoundryCollectionRecord &out)
{
    readRecord(in, out);
}

void writeJson(JsonWriter &out, const FoundryCollectionRecord &value)
{
    writeRecord(out, value);
}

void readJson(JsonReader &in, LogoConfiguration &out)
{
    readRecord(in, out);
}

void writeJson(JsonWriter &out, const LogoConfiguration &value)
{
    writeRecord(out, value);
}

void readJson(JsonReader &in, SourceDisplaySettings &out)
{
    readRecord(in, out);
}

void writeJson(JsonWriter &out, const SourceDisplaySettings &value)
{
    writeRecord(out, value);
}

void readJson(JsonReader &in, WritingScript &out)
{
    readJsonName<WritingScript>(in, kScriptNames, out);
}

void writeJson(JsonWriter &out, const WritingScript &value)
{
    out.string(storedName(value));
}

void readJson(JsonReader &in, InstallMethod &out)
{
    readJsonName<InstallMethod>(in, kMethodNames, out);
}

void writeJson(JsonWriter &out, const InstallMethod &value)
{
    out.string(storedName(value));
}

void readJson(JsonReader &in, ViewMode &out)
{
    readJsonName<ViewMode>(in, kViewModeNames, out);
}

void writeJson(JsonWriter &out, const ViewMode &value)
{
    out.string(storedName(value));
}

void readJson(JsonReader &in, ColorMode &out)
{
    qint64 number = 0;
    in.read(number);
    if (in.hasFailed())
        return;
    if (const std::optional<ColorMode> mode = colorModeFromNumber(number))
        out = *mode;
    else
        in.fail(ErrorKind::invalidValue, Texts::tr("%1 is no colour mode").arg(number));
}

void writeJson(JsonWriter &out, const ColorMode &value)
{
    out.integer(qint64(value));
}

QString storedName(WritingScript script)
{
    return storedNameOf<WritingScript>(kScriptNames, script);
}

QString storedName(InstallMethod method)
{
    return storedNameOf<InstallMethod>(kMethodNames, method);
}

QString storedName(ViewMode mode)
{
    return storedNameOf<ViewMode>(kViewModeNames, mode);
}

std::optional<WritingScript> writingScriptFromName(QStringView name)
{
    return fromJsonName<WritingScript>(kScriptNames, name.toUtf8());
}

std::optional<InstallMethod> installMethodFromName(QStringView name)
{
    return fromJsonName<InstallMethod>(kMethodNames, name.toUtf8());
}

std::optional<ViewMode> viewModeFromName(QStringView name)
{
    return fromJsonName<ViewMode>(kViewModeNames, name.toUtf8());
}

QByteArray encodeFamilies(const std::vector<FontFamilyRecord> &families)
{
    return encodeJson(families);
}

Result<std::vector<FontFamilyRecord>> decodeFamilies(QByteArray json)
{
    return decodeJson<std::vector<FontFamilyRecord>>(std::move(json));
}

} // namespace lorva
