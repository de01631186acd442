// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/StyleWords.h"

namespace lorva {

namespace {

constexpr QStringView kSansWords[]{u"sans", u"grotesk", u"grotesque"};

constexpr QStringView kGothicWords[]{
    u"ゴシック",
    u"角ゴ",
    u"丸ゴ",
    u"黑体",
    u"黑體",
    u"고딕",
    u"돋움",
    u"굴림",
    u"heiti",
    u"pingfang",
    u"dotum",
    u"gulim",
    u"kaku gothic",
    u"maru gothic",
    u"yu gothic",
    u"yugothic",
    u"ms gothic",
    u"ms pgothic",
    u"ms ui gothic",
    u"udgothic",
    u"ud gothic",
    u"bunkyu gothic",
    u"apple sd gothic",
    u"applegothic",
    u"nanum gothic",
    u"malgun gothic",
};

constexpr QStringView kMingWords[]{
    u"明朝", u"明體",   u"明体",    u"宋体",     u"宋體",      u"명조",
    u"바탕", u"mincho", u"myungjo", u"myeongjo", u"batangche", u"songti",
};

constexpr QStringView kBrushWords[]{
    u"楷体", u"楷體", u"行书", u"行書", u"궁서", u"kaiti", u"gungseo",
};

} // namespace

std::span<const QStringView> sansWords()
{
    return kSansWords;
}

std::span<const QStringView> gothicWords()
{
    return kGothicWords;
}

std::span<const QStringView> mingWords()
{
    return kMingWords;
}

std::span<const QStringView> brushWords()
{
    return kBrushWords;
}

} // namespace lorva
