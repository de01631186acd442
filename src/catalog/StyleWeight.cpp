// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/StyleWeight.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <array>

namespace lorva {

namespace {

struct WeightWord
{
    QLatin1StringView first;
    /// Empty for a word that stands alone.
    QLatin1StringView second;
    int weight;
};

using namespace Qt::Literals::StringLiterals;

/// The first that a label contains decides, so the compounds stand before "light" and "bold".
constexpr std::array kWeightWords{
    WeightWord{"hairline"_L1, {}, 100},   WeightWord{"thin"_L1, {}, 100},
    WeightWord{"ultralight"_L1, {}, 200}, WeightWord{"ultra"_L1, "light"_L1, 200},
    WeightWord{"extralight"_L1, {}, 200}, WeightWord{"extra"_L1, "light"_L1, 200},
    WeightWord{"semibold"_L1, {}, 600},   WeightWord{"semi"_L1, "bold"_L1, 600},
    WeightWord{"demibold"_L1, {}, 600},   WeightWord{"demi"_L1, "bold"_L1, 600},
    WeightWord{"demilight"_L1, {}, 300},  WeightWord{"demi"_L1, "light"_L1, 300},
    WeightWord{"semilight"_L1, {}, 300},  WeightWord{"semi"_L1, "light"_L1, 300},
    WeightWord{"extrabold"_L1, {}, 800},  WeightWord{"extra"_L1, "bold"_L1, 800},
    WeightWord{"ultrabold"_L1, {}, 800},  WeightWord{"ultra"_L1, "bold"_L1, 800},
    WeightWord{"light"_L1, {}, 300},      WeightWord{"medium"_L1, {}, 500},
    WeightWord{"bold"_L1, {}, 700},       WeightWord{"black"_L1, {}, 900},
    WeightWord{"heavy"_L1, {}, 900},      WeightWord{"regular"_L1, {}, 400},
    WeightWord{"normal"_L1, {}, 400},     WeightWord{"book"_L1, {}, 400},
    WeightWord{"roman"_L1, {}, 400},
};

using Neutral = NeutralStyleWord::Kind;

/// Words that say nothing about weight: a label of these alone is a regular weight.
constexpr std::array kNeutralWords{
    NeutralStyleWord{"compressed"_L1, Neutral::width, 60},
    NeutralStyleWord{"condensed"_L1, Neutral::width, 75},
    NeutralStyleWord{"narrow"_L1, Neutral::width, 82},
    NeutralStyleWord{"compact"_L1, Neutral::width, 90},
    NeutralStyleWord{"wide"_L1, Neutral::width, 115},
    NeutralStyleWord{"extended"_L1, Neutral::width, 125},
    NeutralStyleWord{"expanded"_L1, Neutral::width, 125},
    NeutralStyleWord{"micro"_L1, Neutral::opticalSize, 6},
    NeutralStyleWord{"caption"_L1, Neutral::opticalSize, 8},
    NeutralStyleWord{"text"_L1, Neutral::opticalSize, 12},
    NeutralStyleWord{"headline"_L1, Neutral::opticalSize, 24},
    NeutralStyleWord{"display"_L1, Neutral::opticalSize, 36},
    NeutralStyleWord{"banner"_L1, Neutral::opticalSize, 72},
    NeutralStyleWord{"mono"_L1, Neutral::spacing},
    NeutralStyleWord{"monospaced"_L1, Neutral::spacing},
    NeutralStyleWord{"standard"_L1},
    NeutralStyleWord{"trial"_L1},
    NeutralStyleWord{"plus"_L1},
    NeutralStyleWord{"variable"_L1},
};

/// Word characters as regular expressions over Unicode text know them.
bool isWordCharacter(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c.category() == QChar::Punctuation_Connector;
}

bool isWordBoundary(QStringView text, qsizetype at)
{
    const bool before = at > 0 && isWordCharacter(text[at - 1]);
    const bool after = at < text.size() && isWordCharacter(text[at]);
    return before != after;
}

/// "W" and one or two digits as a word of their own, the Japanese foundries' scale.
std::optional<int> weightFromNumber(QStringView label)
{
    for (qsizetype at = label.indexOf(u'W'); at >= 0; at = label.indexOf(u'W', at + 1)) {
        qsizetype end = at + 1;
        int number = 0;
        while (end < label.size() && end - at <= 2 && label[end].isDigit())
            number = number * 10 + label[end++].digitValue();
        if (end > at + 1 && isWordBoundary(label, at) && isWordBoundary(label, end))
            return number == 0 ? 100 : std::clamp(number * 100, 100, 900);
    }
    return std::nullopt;
}

QString normalizedLabel(QStringView label)
{
    QString text = label.toString().toLower();
    text.replace(u'-', u' ').replace(u'_', u' ');
    text.remove(" italic"_L1);
    text.remove(" oblique"_L1);
    return text;
}

/// Position in kWeightWords of the best word that begins with `token`; the table's size for none.
size_t rankOf(QStringView token, QStringView next)
{
    for (size_t rank = 0; rank < kWeightWords.size(); ++rank) {
        const WeightWord &word = kWeightWords[rank];
        if (token == word.first && (word.second.isEmpty() || next == word.second))
            return rank;
    }
    return kWeightWords.size();
}

/// Takes the text up to the next single space off the front; two spaces enclose an empty token,
/// which keeps a compound from matching across them.
QStringView takeToken(QStringView &rest, bool &isLast)
{
    const qsizetype space = rest.indexOf(u' ');
    isLast = space < 0;
    const QStringView token = isLast ? rest : rest.first(space);
    rest = isLast ? QStringView() : rest.sliced(space + 1);
    return token;
}

std::optional<int> weightFromWords(QStringView text)
{
    size_t best = kWeightWords.size();
    bool isLast = false;
    QStringView token = takeToken(text, isLast);
    for (;;) {
        const bool wasLast = isLast;
        const QStringView next = wasLast ? QStringView() : takeToken(text, isLast);
        best = std::min(best, rankOf(token, next));
        if (wasLast)
            break;
        token = next;
    }
    if (best == kWeightWords.size())
        return std::nullopt;
    return kWeightWords[best].weight;
}

/// True for a label without any word, too.
bool hasOnlyNeutralWords(const QString &text)
{
    const QString simplified = text.simplified();
    if (simplified.isEmpty())
        return true;
    const QList<QStringView> words = QStringView(simplified).split(u' ');
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (neutralStyleWord(words[i]))
            continue;
        // The one neutral name of two words.
        const bool isSemiMono =
            words[i] == "semi"_L1 && i + 1 < words.size() && words[i + 1] == "mono"_L1;
        if (!isSemiMono)
            return false;
    }
    return true;
}

bool hasWord(QStringView text, QLatin1StringView word)
{
    for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
        if (isWordBoundary(text, at) && isWordBoundary(text, at + word.size()))
            return true;
    }
    return false;
}

} // namespace

std::optional<int> weightFromStyleLabel(QStringView label)
{
    if (const std::optional<int> numbered = weightFromNumber(label))
        return numbered;
    const QString text = normalizedLabel(label);
    if (const std::optional<int> named = weightFromWords(text))
        return named;
    if (hasOnlyNeutralWords(text))
        return 400;
    return std::nullopt;
}

int weightFromTrait(double trait)
{
    struct Step
    {
        double below;
        int weight;
    };
    constexpr Step kSteps[]{{-0.65, 100}, {-0.45, 200}, {-0.2, 300}, {0.1, 400},
                            {0.25, 500},  {0.4, 600},   {0.55, 700}, {0.75, 800}};
    for (const Step &step : kSteps) {
        if (trait < step.below)
            return step.weight;
    }
    return 900;
}

int styleWeight(QStringView label, const FaceTraits &traits)
{
    if (const std::optional<int> named = weightFromStyleLabel(label))
        return *named;
    return weightFromTrait(traits.weight);
}

const NeutralStyleWord *neutralStyleWord(QStringView word)
{
    const auto found = std::ranges::find_if(
        kNeutralWords, [&](const NeutralStyleWord &neutral) { return word == neutral.word; });
    return found == kNeutralWords.end() ? nullptr : &*found;
}

bool isItalicStyle(QStringView label, const FaceTraits &traits)
{
    return traits.slant > 0.01 || traits.isItalic || hasWord(label, "italic"_L1)
        || hasWord(label, "oblique"_L1);
}

} // namespace lorva
