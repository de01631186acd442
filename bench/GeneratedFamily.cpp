// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "bench/GeneratedFamily.h"

#include "bench/LibraryGenerator.h"
#include "support/FontBuilder.h"

#include <array>

namespace lorva::bench {

namespace {

using test::FontBuilder;

constexpr int kFamiliesPerFoundry = 40;
constexpr int kFamiliesPerStem = 8;

struct Style
{
    const char *label;
    int weightClass;
    bool isItalic;
};
constexpr std::array<Style, kFacesPerFamily> kStyles{{{"Thin", 100, false},
                                                      {"Light", 300, false},
                                                      {"Regular", 400, false},
                                                      {"Italic", 400, true},
                                                      {"Medium", 500, false},
                                                      {"SemiBold", 600, false},
                                                      {"Bold", 700, false},
                                                      {"Bold Italic", 700, true},
                                                      {"ExtraBold", 800, false},
                                                      {"Black", 900, false}}};

struct Instance
{
    const char *label;
    double weight;
    double width;
};
constexpr std::array<Instance, kFacesPerFamily> kInstances{{{"Light", 300, 100},
                                                            {"Regular", 400, 100},
                                                            {"Medium", 500, 100},
                                                            {"Bold", 700, 100},
                                                            {"Black", 900, 100},
                                                            {"Condensed Light", 300, 75},
                                                            {"Condensed", 400, 75},
                                                            {"Condensed Medium", 500, 75},
                                                            {"Condensed Bold", 700, 75},
                                                            {"Condensed Black", 900, 75}}};

constexpr const char *kDesigns[kFamiliesPerStem]{"",       " Text", " Display", " Grotesk",
                                                 " Serif", " Mono", " Slab",    " Soft"};

/// What a family that is not only Latin adds: its characters and its name in its own language.
struct Script
{
    const char32_t *characters;
    const char *nameSuffix;
    int language;
    const char16_t *nativeWord;
};
constexpr Script kLatin{U"", "", 0, u""};
constexpr Script kJapanese{U"\u3001\u3002\u3042\u3044\u3046\u304B\u306E\u30A2\u30A4\u30AB\u30F3"
                           U"\u4E00\u5929\u6C38\u6F22\u898B",
                           " Mincho", 0x411, u"\u660E\u671D"};
constexpr Script kKorean{U"\uAC00\uAC01\uB098\uB2E4\uB77C\uB9C8\uD55C\uAE00", " Batang", 0x412,
                         u"\uBC14\uD0D5"};
constexpr Script kSimplified{U"\u4E00\u5929\u6C38\u95E8\u6C49\u89C1\u9A6C\u5F20\u4F60\u597D", " SC",
                             0x804, u"\u9ED1\u4F53"};
constexpr Script kTraditional{U"\u4E00\u5929\u6C38\u9580\u6F22\u898B\u99AC\u5F35\u4F60\u597D",
                              " TC", 0x404, u"\u9ED1\u9AD4"};

/// A number that looks random and is the same everywhere (the finalizer of SplitMix64).
quint64 scramble(quint64 value)
{
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ULL;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBULL;
    return value ^ (value >> 31);
}

/// A made-up word of three syllables; different for each number below 216,000.
QString word(int number)
{
    constexpr qint64 kSyllables = 60;
    constexpr char kConsonants[] = "bdfklmnprstv";
    constexpr char kVowels[] = "aeiou";
    constexpr qint64 kStride = 7919;
    qint64 rest = (number * kStride) % (kSyllables * kSyllables * kSyllables);
    QString text;
    for (int i = 0; i < 3; ++i, rest /= kSyllables) {
        text += QLatin1Char(kConsonants[rest % kSyllables / 5]);
        text += QLatin1Char(kVowels[rest % 5]);
    }
    text[0] = text[0].toUpper();
    return text;
}

const Script &scriptOf(int number)
{
    switch (scramble(quint64(number)) % 50) {
    case 0:
    case 1:
        return kJapanese;
    case 2:
        return kKorean;
    case 3:
        return kSimplified;
    case 4:
        return kTraditional;
    default:
        return kLatin;
    }
}

QString foundryName(int number)
{
    // From the far end of the words, which no family reaches.
    return word(215999 - number / kFamiliesPerFoundry) + QLatin1String(" Type");
}

/// What all faces of one family share.
struct Family
{
    explicit Family(int familyNumber)
        : number(familyNumber)
        , script(scriptOf(familyNumber))
        , name(word(familyNumber / kFamiliesPerStem)
               + QLatin1String(kDesigns[familyNumber % kFamiliesPerStem])
               + QLatin1String(script.nameSuffix))
        , foundry(foundryName(familyNumber))
    {
    }

    QString postScriptName(const QString &label) const
    {
        const QString text = name + QLatin1Char('-') + label;
        return QString(text).remove(QLatin1Char(' '));
    }

    int number;
    const Script &script;
    QString name;
    QString foundry;
};

std::u32string charactersOf(const Script &script)
{
    std::u32string characters = U" !&(),-.:;?";
    for (char32_t c = U'0'; c <= U'9'; ++c)
        characters.push_back(c);
    for (char32_t c = U'a'; c <= U'z'; ++c)
        characters += {c, c - U'a' + U'A'};
    return characters + script.characters;
}

void addNativeNames(FontBuilder &builder, const Family &family)
{
    const QString stem = word(family.number / kFamiliesPerStem);
    if (family.script.language != 0) {
        const QString native = stem + QString::fromUtf16(family.script.nativeWord);
        builder.name(1, native, family.script.language);
    } else if (family.number % 33 == 0) {
        constexpr int kGerman = 0x407;
        const QString native = stem + QStringLiteral(" Schrift");
        builder.name(1, native, kGerman);
    }
}

FontBuilder beginFace(const Family &family, const QString &label)
{
    const bool isBasic = label == QLatin1String("Regular") || label == QLatin1String("Italic")
        || label == QLatin1String("Bold") || label == QLatin1String("Bold Italic");
    const QString basicFamily = family.name + QLatin1Char(' ') + label;
    FontBuilder builder(isBasic ? family.name : basicFamily,
                        isBasic ? label : QStringLiteral("Regular"));
    if (!isBasic)
        builder.name(16, family.name).name(17, label);
    builder.postScriptName(family.postScriptName(label)).codePoints(charactersOf(family.script));
    // As in real libraries, not every foundry signs its work.
    if (family.number / kFamiliesPerFoundry % 7 != 0)
        builder.manufacturer(family.foundry);
    builder.capHeight(640 + family.number % 9 * 10).xHeight(440 + family.number % 7 * 15);
    addNativeNames(builder, family);
    return builder;
}

QByteArray staticFace(const Family &family, const Style &style)
{
    FontBuilder builder = beginFace(family, QLatin1String(style.label));
    builder.weightClass(style.weightClass);
    if (style.isItalic)
        builder.italic();
    return builder.build();
}

QByteArray variableFont(const Family &family)
{
    FontBuilder builder = beginFace(family, QStringLiteral("Regular"));
    builder.axis("wght", 300, 400, 900).axis("wdth", 75, 100, 100);
    for (const Instance &instance : kInstances) {
        const QString label = QLatin1String(instance.label);
        builder.instance(label, {instance.weight, instance.width}, family.postScriptName(label));
    }
    return builder.build();
}

QByteArray folderOf(const Family &family)
{
    return family.foundry.toUtf8() + '/';
}

std::vector<GeneratedFile> staticFiles(const Family &family)
{
    std::vector<GeneratedFile> files;
    for (const Style &style : kStyles) {
        const QString name = family.postScriptName(QLatin1String(style.label));
        files.push_back({folderOf(family) + family.name.toUtf8() + '/' + name.toUtf8() + ".ttf",
                         staticFace(family, style)});
    }
    return files;
}

GeneratedFile collectionFile(const Family &family)
{
    QList<QByteArray> faces;
    for (const Style &style : kStyles)
        faces.append(staticFace(family, style));
    return {folderOf(family) + family.name.toUtf8() + ".ttc", FontBuilder::collection(faces)};
}

} // namespace

std::vector<GeneratedFile> generateFamily(int number)
{
    const Family family(number);
    switch (number % 5) {
    case 3:
        return {
            {folderOf(family) + family.name.toUtf8() + "[wght,wdth].ttf", variableFont(family)}};
    case 4:
        return {collectionFile(family)};
    default:
        return staticFiles(family);
    }
}

} // namespace lorva::bench
