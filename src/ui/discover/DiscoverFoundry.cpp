// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/discover/DiscoverFoundry.h"

#include <QCoreApplication>

namespace lorva {

namespace {

struct Entry
{
    const char *id;
    const char *title;
    const char *url;
    const char *imageName;
    const char *subtitle;
};

constexpr Entry kEntries[]{
    {"grilli-type", "Grilli Type", "https://www.grillitype.com", "DiscoverGrilliType",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Independent Swiss type foundry offering original retail and custom "
                       "typefaces with a contemporary aesthetic in the Swiss tradition.")},
    {"klim", "Klim Type Foundry", "https://klim.co.nz", "DiscoverKlim",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Type foundry of Kris Sowersby in Wellington, New Zealand.")},
    {"pangram-pangram", "Pangram Pangram", "https://pangrampangram.com", "DiscoverPangramPangram",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Montréal-based type foundry offering free-to-try retail typefaces.")},
    {"dinamo", "Dinamo", "https://abcdinamo.com", "DiscoverDinamo",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Berlin-based type design studio offering retail and bespoke typefaces, "
                       "design software, research, and consultancy.")},
    {"power-type", "Power Type Foundry", "https://power-type.com", "DiscoverPowerType",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Indonesian type foundry offering contemporary display and text families.")},
    {"atipo", "Atipo Foundry", "https://www.atipofoundry.com", "DiscoverAtipo",
     QT_TRANSLATE_NOOP(
         "DiscoverFoundry",
         "Type foundry from Gijón, Spain, offering typefaces with pay-what-you-want options.")},
    {"displaay", "Displaay Type Foundry", "https://displaay.net", "DiscoverDisplaay",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Prague-based type foundry offering large variable families.")},
    {"ohno", "OH no Type Co.", "https://ohnotype.co", "DiscoverOhNo",
     QT_TRANSLATE_NOOP(
         "DiscoverFoundry",
         "Californian type foundry of James Edmondson, offering expressive display typefaces.")},
    {"letters-from-sweden", "Letters from Sweden", "https://lettersfromsweden.se",
     "DiscoverLettersFromSweden",
     QT_TRANSLATE_NOOP("DiscoverFoundry", "Stockholm-based type foundry of Göran Söderström.")},
    {"optimo", "Optimo", "https://optimo.ch", "DiscoverOptimo",
     QT_TRANSLATE_NOOP("DiscoverFoundry", "Type foundry from Geneva, Switzerland.")},
    {"yep", "Yep! Type Foundry", "https://yeptype.com", "DiscoverYep",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Type foundry offering typefaces for text and interfaces.")},
    {"weltkern", "Weltkern", "https://weltkern.com", "DiscoverWeltkern",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Swiss type foundry offering typefaces and design books.")},
    {"fort", "Fort Foundry", "https://fortfoundry.com", "DiscoverFort",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Type foundry of Mattox Shuler, offering display families and workhorses.")},
    {"hoodzpah", "Hoodzpah", "https://hoodzpahdesign.com", "DiscoverHoodzpah",
     QT_TRANSLATE_NOOP("DiscoverFoundry", "Californian type foundry of Amy and Jen Hood.")},
    {"plain-form", "Plain Form", "https://plain-form.com", "DiscoverPlainForm",
     QT_TRANSLATE_NOOP("DiscoverFoundry",
                       "Type foundry with a small catalogue of contemporary typefaces.")},
    {"nuform", "Nuform Type", "https://nuformtype.com", "DiscoverNuform",
     QT_TRANSLATE_NOOP("DiscoverFoundry", "Type foundry of the lettering artist Erik Marinovich.")},
    {"dstype", "DSType Foundry", "https://www.dstype.com", "DiscoverDSType",
     QT_TRANSLATE_NOOP("DiscoverFoundry", "Type foundry of Dino dos Santos in Porto, Portugal.")},
    {"league", "The League of Moveable Type", "https://www.theleagueofmoveabletype.com",
     "DiscoverLeague",
     QT_TRANSLATE_NOOP(
         "DiscoverFoundry",
         "The first open-source type foundry, launched in 2009, providing a curated collection of "
         "professional-quality free fonts like League Gothic and League Spartan.")},
};

DiscoverFoundry foundryOf(const Entry &entry)
{
    return {QString::fromUtf8(entry.id), QString::fromUtf8(entry.title),
            QCoreApplication::translate("DiscoverFoundry", entry.subtitle),
            QUrl(QString::fromUtf8(entry.url)), QString::fromUtf8(entry.imageName)};
}

} // namespace

std::vector<DiscoverFoundry> discoverFoundries()
{
    std::vector<DiscoverFoundry> foundries;
    for (const Entry &entry : kEntries)
        foundries.push_back(foundryOf(entry));
    return foundries;
}

} // namespace lorva
