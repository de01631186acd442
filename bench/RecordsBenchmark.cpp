// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// How long a library of 100,000 faces takes to read and write, beside what the other readers at
// hand would need for the same records.

#include "model/records/RecordsJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <benchmark/benchmark.h>
#ifdef LORVA_HAS_RAPIDJSON
#include <rapidjson/document.h>
#endif

#include <cstdlib>

namespace lorva {

namespace {

constexpr int kFamilies = 10000;
constexpr int kStylesPerFamily = 10;
constexpr const char *kLabels[kStylesPerFamily]{"Thin",      "Light",    "Regular", "Italic",
                                                "Medium",    "SemiBold", "Bold",    "Bold Italic",
                                                "ExtraBold", "Black"};
constexpr qint64 kWeights[kStylesPerFamily]{100, 300, 400, 400, 500, 600, 700, 700, 800, 900};

FontStyleRecord makeStyle(const QString &family, int index)
{
    const QString label = QLatin1String(kLabels[index]);
    const QString postScript = QString(family).remove(u' ') + u'-' + QString(label).remove(u' ');
    const QString path = QLatin1String("/home/designer/Fonts/Licensed/") + family + u'/'
        + postScript + QLatin1String(".otf");
    FontStyleRecord style;
    style.id = postScript;
    style.label = label;
    style.postScriptName = postScript;
    style.weight = kWeights[index];
    style.isItalic = label.contains(QLatin1String("Italic"));
    style.fileURL = FilePath::fromText(path);
    return style;
}

FontFamilyRecord makeFamily(int index)
{
    FontFamilyRecord family;
    family.familyName = QStringLiteral("Foundry %1 Grotesk %2").arg(index % 97).arg(index);
    for (int style = 0; style < kStylesPerFamily; ++style)
        family.styles.push_back(makeStyle(family.familyName, style));
    family.scripts = {WritingScript::latin};
    family.primaryScript = WritingScript::latin;
    if (index % 10 == 0) {
        family.scripts->insert(WritingScript::japanese);
        family.alternateNames = QStringList{QStringLiteral("見出しゴシック %1").arg(index)};
    }
    return family;
}

const std::vector<FontFamilyRecord> &library()
{
    static const std::vector<FontFamilyRecord> families = [] {
        std::vector<FontFamilyRecord> made;
        for (int index = 0; index < kFamilies; ++index)
            made.push_back(makeFamily(index));
        return made;
    }();
    return families;
}

const QByteArray &libraryJson()
{
    static const QByteArray json = encodeFamilies(library());
    return json;
}

/// A reader that gives other records than the one it stands beside would be no comparison.
void requireLibrary(const std::vector<FontFamilyRecord> &families)
{
    if (families != library())
        std::abort();
}

template <class Decode>
void runDecode(benchmark::State &state, Decode &&decode)
{
    const QByteArray &json = libraryJson();
    requireLibrary(decode(json));
    for (auto _ : state) {
        std::vector<FontFamilyRecord> families = decode(json);
        state.PauseTiming();
        families.clear();
        families.shrink_to_fit();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * json.size());
}

void decodeFamiliesOurs(benchmark::State &state)
{
    runDecode(state, [](const QByteArray &json) { return decodeFamilies(json).value(); });
}

// --- QJsonDocument ---

FontStyleRecord styleFrom(const QJsonObject &object)
{
    FontStyleRecord style;
    style.id = object.value(QLatin1String("id")).toString();
    style.label = object.value(QLatin1String("label")).toString();
    style.postScriptName = object.value(QLatin1String("postScriptName")).toString();
    style.weight = object.value(QLatin1String("weight")).toInteger();
    style.isItalic = object.value(QLatin1String("isItalic")).toBool();
    style.fileURL =
        FilePath::fromUrl(object.value(QLatin1String("fileURL")).toString().toUtf8()).value();
    return style;
}

FontFamilyRecord familyFrom(const QJsonObject &object)
{
    FontFamilyRecord family;
    family.familyName = object.value(QLatin1String("familyName")).toString();
    for (const QJsonValue &style : object.value(QLatin1String("styles")).toArray())
        family.styles.push_back(styleFrom(style.toObject()));
    family.scripts.emplace();
    for (const QJsonValue &script : object.value(QLatin1String("scripts")).toArray())
        family.scripts->insert(writingScriptFromName(script.toString()).value());
    family.primaryScript =
        writingScriptFromName(object.value(QLatin1String("primaryScript")).toString());
    const QJsonValue names = object.value(QLatin1String("alternateNames"));
    if (names.isArray()) {
        family.alternateNames.emplace();
        for (const QJsonValue &name : names.toArray())
            family.alternateNames->append(name.toString());
    }
    return family;
}

void decodeFamiliesQJsonDocument(benchmark::State &state)
{
    runDecode(state, [](const QByteArray &json) {
        std::vector<FontFamilyRecord> families;
        for (const QJsonValue &family : QJsonDocument::fromJson(json).array())
            families.push_back(familyFrom(family.toObject()));
        return families;
    });
}

// --- RapidJSON ---

#ifdef LORVA_HAS_RAPIDJSON
QString textOf(const rapidjson::Value &value)
{
    return QString::fromUtf8(value.GetString(), qsizetype(value.GetStringLength()));
}

FontStyleRecord styleFrom(const rapidjson::Value &object)
{
    const rapidjson::Value &url = object["fileURL"];
    FontStyleRecord style;
    style.id = textOf(object["id"]);
    style.label = textOf(object["label"]);
    style.postScriptName = textOf(object["postScriptName"]);
    style.weight = object["weight"].GetInt64();
    style.isItalic = object["isItalic"].GetBool();
    style.fileURL =
        FilePath::fromUrl(QByteArrayView(url.GetString(), qsizetype(url.GetStringLength())))
            .value();
    return style;
}

FontFamilyRecord familyFrom(const rapidjson::Value &object)
{
    FontFamilyRecord family;
    family.familyName = textOf(object["familyName"]);
    for (const rapidjson::Value &style : object["styles"].GetArray())
        family.styles.push_back(styleFrom(style));
    family.scripts.emplace();
    for (const rapidjson::Value &script : object["scripts"].GetArray())
        family.scripts->insert(writingScriptFromName(textOf(script)).value());
    family.primaryScript = writingScriptFromName(textOf(object["primaryScript"]));
    if (const auto names = object.FindMember("alternateNames"); names != object.MemberEnd()) {
        family.alternateNames.emplace();
        for (const rapidjson::Value &name : names->value.GetArray())
            family.alternateNames->append(textOf(name));
    }
    return family;
}

void decodeFamiliesRapidJson(benchmark::State &state)
{
    runDecode(state, [](const QByteArray &json) {
        rapidjson::Document document;
        document.Parse<rapidjson::kParseValidateEncodingFlag | rapidjson::kParseFullPrecisionFlag>(
            json.constData(), size_t(json.size()));
        std::vector<FontFamilyRecord> families;
        for (const rapidjson::Value &family : document.GetArray())
            families.push_back(familyFrom(family));
        return families;
    });
}
#endif

void encodeFamiliesOurs(benchmark::State &state)
{
    const std::vector<FontFamilyRecord> &families = library();
    for (auto _ : state)
        benchmark::DoNotOptimize(encodeFamilies(families));
    state.SetBytesProcessed(state.iterations() * libraryJson().size());
}

} // namespace

} // namespace lorva

BENCHMARK(lorva::decodeFamiliesOurs)
    ->Name("decode 100k faces, ours")
    ->Unit(benchmark::kMillisecond);
#ifdef LORVA_HAS_RAPIDJSON
BENCHMARK(lorva::decodeFamiliesRapidJson)
    ->Name("decode 100k faces, RapidJSON")
    ->Unit(benchmark::kMillisecond);
#endif
BENCHMARK(lorva::decodeFamiliesQJsonDocument)
    ->Name("decode 100k faces, QJsonDocument")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(lorva::encodeFamiliesOurs)
    ->Name("encode 100k faces, ours")
    ->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
