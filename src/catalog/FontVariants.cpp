// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontVariants.h"

#include "catalog/StyleWeight.h"

#include <QMap>

#include <algorithm>
#include <tuple>

namespace lorva {

namespace {

using namespace Qt::Literals::StringLiterals;
using Kind = NeutralStyleWord::Kind;

constexpr double kUsualWidth = 100;
/// A style that does not name its size is drawn for running text, or a little more.
constexpr int kUsualSize = 13;
/// More words than that make no label, but a text.
constexpr qsizetype kMostWords = 32;

/// What comes before a width word, joined to it or not: how far the width is from the usual one.
struct Modifier
{
    QLatin1StringView word;
    double share;
};
constexpr std::array kModifiers{
    Modifier{"semi"_L1, 0.5},
    Modifier{"demi"_L1, 0.5},
    Modifier{"extra"_L1, 1.5},
    Modifier{"ultra"_L1, 2},
};

const Modifier *modifierNamed(QStringView word)
{
    const auto found = std::ranges::find_if(
        kModifiers, [&](const Modifier &modifier) { return word == modifier.word; });
    return found == kModifiers.end() ? nullptr : &*found;
}

/// What a label says of the variant.
struct VariantWords
{
    /// As written.
    QStringList written;
    /// The same words in any spelling and order have the same.
    QStringList key;
    double width = kUsualWidth;
    int opticalSize = kUsualSize;

    void add(const NeutralStyleWord &word, const Modifier *modifier, const QString &asWritten);
};

void VariantWords::add(const NeutralStyleWord &word, const Modifier *modifier,
                       const QString &asWritten)
{
    const QString plain = (modifier ? QString(modifier->word) : QString()) + word.word;
    if (word.kind == Kind::other || key.contains(plain))
        return;
    key.append(plain);
    written.append(asWritten);
    if (word.kind == Kind::width)
        width += (word.measure - kUsualWidth) * (modifier ? modifier->share : 1);
    if (word.kind == Kind::opticalSize)
        opticalSize = word.measure;
}

bool takesModifier(const NeutralStyleWord &word)
{
    return word.kind == Kind::width || word.kind == Kind::spacing;
}

/// A word that holds its modifier, "semicondensed", or has it before it.
struct FoundWord
{
    const NeutralStyleWord *word = nullptr;
    const Modifier *modifier = nullptr;
    bool isModifiedByPrevious = false;
};

FoundWord findWord(const QString &word, const QString &previous)
{
    if (const NeutralStyleWord *plain = neutralStyleWord(word)) {
        const Modifier *before = takesModifier(*plain) ? modifierNamed(previous) : nullptr;
        return {plain, before, before != nullptr};
    }
    for (const Modifier &modifier : kModifiers) {
        if (!word.startsWith(modifier.word))
            continue;
        const auto *rest = neutralStyleWord(QStringView(word).sliced(modifier.word.size()));
        if (rest && takesModifier(*rest))
            return {rest, &modifier, false};
    }
    return {};
}

VariantWords wordsOf(QString label)
{
    label.replace(u'-', u' ').replace(u'_', u' ');
    const QStringList words = label.split(u' ', Qt::SkipEmptyParts).mid(0, kMostWords);
    VariantWords found;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString previous = i > 0 ? words[i - 1].toLower() : QString();
        const FoundWord each = findWord(words[i].toLower(), previous);
        if (!each.word)
            continue;
        const QString written =
            each.isModifiedByPrevious ? QString(words[i - 1] % u' ' % words[i]) : words[i];
        found.add(*each.word, each.modifier, written);
    }
    found.key.sort();
    return found;
}

struct Group
{
    VariantWords words;
    FontVariant variant;

    /// What the groups are sorted by.
    auto order() const
    {
        return std::tuple(!words.key.isEmpty(), words.width, words.opticalSize, words.key);
    }
};

} // namespace

std::vector<FontVariant> variantsOf(const FontFamilyRecord &family)
{
    std::vector<FontStyleRecord> styles = family.styles;
    sortStyles(styles);
    QMap<QStringList, Group> groups;
    for (FontStyleRecord &style : styles) {
        VariantWords words = wordsOf(style.label);
        const QStringList key = words.key;
        auto group = groups.find(key);
        if (group == groups.end()) {
            const QString label =
                key.isEmpty() ? QStringLiteral("Regular") : words.written.join(u' ');
            group = groups.insert(key, Group{std::move(words), {label, family.familyName, {}}});
        }
        group->variant.styles.push_back(std::move(style));
    }
    QList<Group> sorted = groups.values();
    std::ranges::stable_sort(sorted, {}, &Group::order);
    std::vector<FontVariant> variants;
    for (Group &group : sorted)
        variants.push_back(std::move(group.variant));
    return variants;
}

void sortStyles(std::vector<FontStyleRecord> &styles)
{
    std::stable_sort(styles.begin(), styles.end(), [](const auto &a, const auto &b) {
        return std::tie(a.weight, a.isItalic, a.label) < std::tie(b.weight, b.isItalic, b.label);
    });
}

} // namespace lorva
