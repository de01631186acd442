// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontVariants.h"

#include "catalog/StyleWeight.h"
#include "support/QtPrinters.h"
#include "support/RowNames.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

FontFamilyRecord familyOf(const QStringList &labels)
{
    FontFamilyRecord family;
    family.familyName = QStringLiteral("Test");
    for (const QString &label : labels) {
        FontStyleRecord style;
        style.id = label;
        style.label = label;
        style.weight = styleWeight(label, {});
        style.isItalic = isItalicStyle(label, {});
        family.styles.push_back(style);
    }
    return family;
}

/// "Regular: Light, Bold | Condensed: Light"
QString described(const std::vector<FontVariant> &variants)
{
    QStringList parts;
    for (const FontVariant &variant : variants) {
        EXPECT_EQ(variant.familyName, QStringLiteral("Test"));
        QStringList labels;
        for (const FontStyleRecord &style : variant.styles)
            labels.append(style.label);
        parts.append(variant.label + QStringLiteral(": ") + labels.join(QStringLiteral(", ")));
    }
    return parts.join(QStringLiteral(" | "));
}

struct VariantCase
{
    const char *labels;
    const char *variants;
};

void PrintTo(const VariantCase &row, std::ostream *out)
{
    *out << test::nameText(row.labels);
}

class Variants : public testing::TestWithParam<VariantCase>
{
};

TEST_P(Variants, AreReadFromTheLabels)
{
    const QStringList labels =
        QString::fromUtf8(GetParam().labels).split(QStringLiteral(", "), Qt::SkipEmptyParts);
    EXPECT_EQ(described(variantsOf(familyOf(labels))), QString::fromUtf8(GetParam().variants));
}

INSTANTIATE_TEST_SUITE_P(
    Labels, Variants,
    testing::Values(
        VariantCase{"", ""},
        VariantCase{"Bold, Thin, Italic, Bold Italic, Regular",
                    "Regular: Thin, Regular, Italic, Bold, Bold Italic"},
        VariantCase{"Regular, Bold, DemiLight, Black", "Regular: DemiLight, Regular, Bold, Black"},
        // What is one variant in two spellings is called as in its lightest style.
        VariantCase{"SemiCondensed Bold Italic, Semi Condensed Light, Bold, Condensed",
                    "Regular: Bold | Condensed: Condensed | "
                    "Semi Condensed: Semi Condensed Light, SemiCondensed Bold Italic"},
        VariantCase{"Display Bold, Caption, Regular, Caption Italic, Display",
                    "Regular: Regular | Caption: Caption, Caption Italic | "
                    "Display: Display, Display Bold"},
        VariantCase{"Expanded, ExtraCondensed, Ultra-Condensed Thin, Wide, Narrow, Extra_Expanded",
                    "Ultra Condensed: Ultra-Condensed Thin | ExtraCondensed: ExtraCondensed | "
                    "Narrow: Narrow | Wide: Wide | Expanded: Expanded | "
                    "Extra Expanded: Extra_Expanded"},
        VariantCase{"Display Condensed Bold, Condensed Display, Banner Condensed, Text Condensed",
                    "Text Condensed: Text Condensed | "
                    "Condensed Display: Condensed Display, Display Condensed Bold | "
                    "Banner Condensed: Banner Condensed"},
        // A modifier of the weight is none of the width.
        VariantCase{"Extra Bold, Extra Bold Condensed, Condensed Extra Light, Condensed Condensed",
                    "Regular: Extra Bold | Condensed: Condensed Extra Light, Condensed Condensed, "
                    "Extra Bold Condensed"},
        VariantCase{"Mono Bold, Semi Mono, Variable, Trial Light, Plus Bold",
                    "Regular: Trial Light, Variable, Plus Bold | Mono: Mono Bold | "
                    "Semi Mono: Semi Mono"},
        VariantCase{"Condensed Only, Condensed", "Condensed: Condensed, Condensed Only"},
        VariantCase{"DISPLAY light, display", "DISPLAY: DISPLAY light, display"},
        VariantCase{"Contextual, Widetype, Semi, Extra",
                    "Regular: Contextual, Extra, Semi, Widetype"}));

TEST(FontVariants, SurviveLabelsThatAreNone)
{
    const QString words = QStringLiteral("Condensed Display Wide ").repeated(4000);
    const std::vector<FontVariant> variants =
        variantsOf(familyOf({words, QString(60000, u'x'), {}, QStringLiteral(" - _ ")}));
    ASSERT_EQ(variants.size(), 2U);
    EXPECT_EQ(variants[0].label, QStringLiteral("Regular"));
    EXPECT_EQ(variants[0].styles.size(), 3U);
    EXPECT_EQ(variants[1].label, QStringLiteral("Condensed Display Wide"));
}

} // namespace
} // namespace lorva
