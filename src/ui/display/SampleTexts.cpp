// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/SampleTexts.h"

#include <QtGlobal>

namespace lorva {

namespace {

constexpr const char16_t *kLatin[]{
    u"Aa 123",
    u"Hamburgefonstiv",
    u"Sphinx of black quartz, judge my vow",
    u"The quick brown fox jumps over the lazy dog",
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZ",
    u"abcdefghijklmnopqrstuvwxyz",
    u"Żółć, Ærø, Čeština, Größe, İstanbul",
};
constexpr const char16_t *kFigures[]{
    u"0123456789",
    u"$1,234.56 €78 £90 ¥100",
    u"12:45 – 24/7 – ½ ¼ ¾ – 30 %",
};
constexpr const char16_t *kGreek[]{
    u"Αα Ββ Γγ Δδ Ωω",
    u"Ξεσκεπάζω την ψυχοφθόρα βδελυγμία",
};
constexpr const char16_t *kCyrillic[]{
    u"Аа Бб Жж Щщ Яя",
    u"Съешь же ещё этих мягких французских булок",
};
constexpr const char16_t *kArabic[]{
    u"أبجد هوز حطي كلمن",
    u"نص حكيم له سر قاطع وذو شأن عظيم",
};
constexpr const char16_t *kHebrew[]{
    u"אבגדהוזחטיכלמנ",
    u"דג סקרן שט בים מאוכזב ולפתע מצא חברה",
};
constexpr const char16_t *kDevanagari[]{
    u"अ आ इ ई क ख ग घ",
    u"ऋषियों को सताने वाले दुष्ट राक्षसों के राजा",
};
constexpr const char16_t *kThai[]{
    u"กขคง ๑๒๓",
    u"เป็นมนุษย์สุดประเสริฐเลิศคุณค่า",
};
constexpr const char16_t *kJapanese[]{
    u"永あア 123",
    u"いろはにほへと ちりぬるを",
    u"春はあけぼの。やうやう白くなりゆく山ぎは",
};
constexpr const char16_t *kKorean[]{
    u"한글 가나다 123",
    u"다람쥐 헌 쳇바퀴에 타고파",
};
constexpr const char16_t *kSimplifiedChinese[]{
    u"永汉 123",
    u"天地玄黄 宇宙洪荒",
    u"我能吞下玻璃而不伤身体",
};
constexpr const char16_t *kTraditionalChinese[]{
    u"永漢 123",
    u"天地玄黃 宇宙洪荒",
    u"我能吞下玻璃而不傷身體",
};

constexpr SampleTextGroup kGroups[]{
    //: Sample texts in this script.
    {QT_TRANSLATE_NOOP("SampleTexts", "Latin"), kLatin},
    {QT_TRANSLATE_NOOP("SampleTexts", "Figures"), kFigures},
    {QT_TRANSLATE_NOOP("SampleTexts", "Greek"), kGreek},
    {QT_TRANSLATE_NOOP("SampleTexts", "Cyrillic"), kCyrillic},
    {QT_TRANSLATE_NOOP("SampleTexts", "Arabic"), kArabic},
    {QT_TRANSLATE_NOOP("SampleTexts", "Hebrew"), kHebrew},
    {QT_TRANSLATE_NOOP("SampleTexts", "Devanagari"), kDevanagari},
    {QT_TRANSLATE_NOOP("SampleTexts", "Thai"), kThai},
    {QT_TRANSLATE_NOOP("SampleTexts", "Japanese"), kJapanese},
    {QT_TRANSLATE_NOOP("SampleTexts", "Korean"), kKorean},
    {QT_TRANSLATE_NOOP("SampleTexts", "Simplified Chinese"), kSimplifiedChinese},
    {QT_TRANSLATE_NOOP("SampleTexts", "Traditional Chinese"), kTraditionalChinese},
};

} // namespace

std::span<const SampleTextGroup> sampleTextGroups()
{
    return kGroups;
}

} // namespace lorva
