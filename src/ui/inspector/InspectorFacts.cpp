// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/InspectorFacts.h"

#include "base/Folding.h"
#include "base/GroupedNumber.h"
#include "catalog/FontInspectorService.h"

#include <QCoreApplication>

#include <unicode/uchar.h>
#include <unicode/uloc.h>

#include <algorithm>
#include <array>

namespace lorva {

namespace {

enum NameIds : quint16 { vendorUrl = 11, designerUrl = 12, licenseText = 13, licenseUrl = 14 };

constexpr qsizetype kLongestLink = 2000;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontInspector)
};

/// Only these bring texts of their own.
bool mayHaveTexts(FontTag tag)
{
    const FontTag kind = tag >> 16;
    return kind == (fontTag('s', 's', 0, 0) >> 16) || kind == (fontTag('c', 'v', 0, 0) >> 16);
}

FeatureNotes notesOf(const FontFace &face, const FontFeature &feature,
                     const OpenTypeFeatureRecord &record)
{
    FeatureNotes notes{record.name, feature.tag, {}, {}};
    if (feature.tag == 0)
        return notes;
    if (record.name == tagText(feature.tag)) {
        const QString friendly = featureTagName(feature.tag);
        notes.title = friendly.isEmpty() ? record.name : friendly;
    }
    if (!mayHaveTexts(feature.tag))
        return notes;
    const FeatureTexts texts = featureTexts(face, feature.tag);
    notes.toolTip = texts.toolTip;
    notes.valueNames = QStringList(texts.valueNames.begin(), texts.valueNames.end());
    return notes;
}

InfoRow linkRow(const QString &label, const QString &text)
{
    return {label, text, webLink(text)};
}

void addLink(InfoSection &section, const QString &label, const QString &text)
{
    if (!text.isEmpty())
        section.rows.push_back(linkRow(label, text));
}

/// ICU's own name of the language in `locale`'s language.
QString languageName(const QByteArray &tag, const QLocale &locale)
{
    std::array<UChar, 160> name{};
    std::array<char, ULOC_FULLNAME_CAPACITY> language{};
    UErrorCode code = U_ZERO_ERROR;
    uloc_forLanguageTag(tag.constData(), language.data(), int(language.size()), nullptr, &code);
    const QByteArray reader = locale.bcp47Name().toLatin1();
    const int length = uloc_getDisplayName(language.data(), reader.constData(), name.data(),
                                           int(name.size()), &code);
    if (U_FAILURE(code) || length <= 0)
        return QString::fromLatin1(tag);
    return QString::fromUtf16(name.data(), length);
}

/// A mark alone would sit on its neighbour.
QString shown(char32_t character)
{
    const bool isMark = (U_GET_GC_MASK(UChar32(character)) & U_GC_M_MASK) != 0;
    const QString alone = QString::fromUcs4(&character, 1);
    return isMark ? QString(u'\u25CC' % alone) : alone;
}

QString missingText(const std::vector<char32_t> &missing)
{
    QStringList characters;
    for (const char32_t character : missing)
        characters << shown(character);
    return characters.join(u' ');
}

struct NamedLanguage
{
    QString name;
    const LanguageCoverage *coverage;
};

std::vector<NamedLanguage> inReadingOrder(const std::vector<LanguageCoverage> &coverage,
                                          const QLocale &locale)
{
    std::vector<NamedLanguage> languages;
    languages.reserve(coverage.size());
    for (const LanguageCoverage &each : coverage)
        languages.push_back({languageName(each.language, locale), &each});
    const NameCollator order(locale);
    std::stable_sort(languages.begin(), languages.end(),
                     [&](const NamedLanguage &left, const NamedLanguage &right) {
                         return order(left.name, right.name);
                     });
    return languages;
}

} // namespace

QUrl webLink(const QString &text)
{
    if (text.size() > kLongestLink)
        return {};
    const QUrl url(text.trimmed(), QUrl::StrictMode);
    const bool isWeb = url.scheme() == u"http" || url.scheme() == u"https";
    return url.isValid() && isWeb && !url.host().isEmpty() ? url : QUrl();
}

std::vector<InfoSection> legalSections(const FaceInformation &information)
{
    std::vector<InfoSection> sections;
    InfoSection license{Texts::tr("License"), {}};
    if (const QString text = information.nameOf(licenseText); !text.isEmpty())
        license.rows.push_back({QString(), text});
    addLink(license, {}, information.nameOf(licenseUrl));
    if (!license.rows.empty())
        sections.push_back(std::move(license));
    if (information.embedding)
        sections.push_back(
            //: Whether documents may embed the font.
            {Texts::tr("Embedding"), {{QString(), embeddingText(*information.embedding)}}});
    return sections;
}

InfoSection linksSection(const FaceInformation &information)
{
    InfoSection section{Texts::tr("Links"), {}};
    //: Whose web page it is.
    addLink(section, Texts::tr("Vendor"), information.nameOf(vendorUrl));
    addLink(section, Texts::tr("Designer"), information.nameOf(designerUrl));
    addLink(section, Texts::tr("License"), information.nameOf(licenseUrl));
    return section;
}

std::vector<InfoSection> languageSections(const std::vector<LanguageCoverage> &coverage,
                                          const QLocale &locale)
{
    QStringList whole;
    QStringList nearly;
    for (const NamedLanguage &each : inReadingOrder(coverage, locale)) {
        if (each.coverage->missing.empty())
            whole << each.name;
        else
            //: A language, and the characters of it that the font lacks.
            nearly << Texts::tr("%1: %2").arg(each.name, missingText(each.coverage->missing));
    }
    std::vector<InfoSection> sections;
    if (!whole.isEmpty()) {
        sections.push_back({Texts::tr("Languages"),
                            {{Texts::tr("Supported"), groupedNumber(whole.size())},
                             {QString(), locale.createSeparatedList(whole)}}});
    }
    if (!nearly.isEmpty()) {
        sections.push_back(
            {Texts::tr("Languages with Missing Characters"), {{QString(), nearly.join(u'\n')}}});
    }
    return sections;
}

/// Real fonts stay far below both; each costs a row or an entry of a menu.
constexpr size_t kMostFeatures = 500;
constexpr size_t kMostInstances = 400;

InspectorFacts readInspectorFacts(const FontFace &face, const OrthographyBook *book,
                                  const std::stop_token &stop)
{
    InspectorFacts facts;
    facts.offered = fontFeatures(face);
    facts.offered.resize(std::min(facts.offered.size(), kMostFeatures));
    facts.features = FontInspectorService::features(facts.offered);
    for (size_t i = 0; i < facts.offered.size() && !stop.stop_requested(); ++i)
        facts.notes.push_back(notesOf(face, facts.offered[i], facts.features[i]));
    facts.instances = face.namedInstances();
    facts.instances.resize(std::min(facts.instances.size(), kMostInstances));
    const FaceInformation information = readFaceInformation(face);
    facts.metadata = FontInspectorService::metadata(face, information);
    facts.furtherSections = legalSections(information);
    if (book && !stop.stop_requested()) {
        const auto coverage = languageCoverage(*book->orthographies(), readCharacters(face));
        for (InfoSection &section : languageSections(coverage, QLocale()))
            facts.furtherSections.push_back(std::move(section));
    }
    if (InfoSection links = linksSection(information); !links.rows.empty())
        facts.furtherSections.push_back(std::move(links));
    return facts;
}

} // namespace lorva
