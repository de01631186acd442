// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/names/NameLanguages.h"

#include <algorithm>
#include <iterator>

namespace lorva {

namespace {

struct Language
{
    quint16 id;
    const char *tag;
};

/// Windows language ids ([MS-LCID]). A region that goes without saying is left out, so that the
/// Windows and the Macintosh records of a name agree on their language.
constexpr Language kWindowsLanguages[] = {
    {0x0401, "ar-SA"},      {0x0402, "bg"},         {0x0403, "ca"},      {0x0404, "zh-TW"},
    {0x0405, "cs"},         {0x0406, "da"},         {0x0407, "de"},      {0x0408, "el"},
    {0x0409, "en"},         {0x040A, "es"},         {0x040B, "fi"},      {0x040C, "fr"},
    {0x040D, "he"},         {0x040E, "hu"},         {0x040F, "is"},      {0x0410, "it"},
    {0x0411, "ja"},         {0x0412, "ko"},         {0x0413, "nl"},      {0x0414, "nb"},
    {0x0415, "pl"},         {0x0416, "pt"},         {0x0417, "rm"},      {0x0418, "ro"},
    {0x0419, "ru"},         {0x041A, "hr"},         {0x041B, "sk"},      {0x041C, "sq"},
    {0x041D, "sv"},         {0x041E, "th"},         {0x041F, "tr"},      {0x0420, "ur"},
    {0x0421, "id"},         {0x0422, "uk"},         {0x0423, "be"},      {0x0424, "sl"},
    {0x0425, "et"},         {0x0426, "lv"},         {0x0427, "lt"},      {0x0428, "tg"},
    {0x0429, "fa"},         {0x042A, "vi"},         {0x042B, "hy"},      {0x042C, "az"},
    {0x042D, "eu"},         {0x042E, "hsb"},        {0x042F, "mk"},      {0x0430, "st"},
    {0x0431, "ts"},         {0x0432, "tn"},         {0x0433, "ve"},      {0x0434, "xh"},
    {0x0435, "zu"},         {0x0436, "af"},         {0x0437, "ka"},      {0x0438, "fo"},
    {0x0439, "hi"},         {0x043A, "mt"},         {0x043B, "se"},      {0x043D, "yi"},
    {0x043E, "ms"},         {0x043F, "kk"},         {0x0440, "ky"},      {0x0441, "sw"},
    {0x0442, "tk"},         {0x0443, "uz"},         {0x0444, "tt"},      {0x0445, "bn-IN"},
    {0x0446, "pa"},         {0x0447, "gu"},         {0x0448, "or"},      {0x0449, "ta"},
    {0x044A, "te"},         {0x044B, "kn"},         {0x044C, "ml"},      {0x044D, "as"},
    {0x044E, "mr"},         {0x044F, "sa"},         {0x0450, "mn"},      {0x0451, "bo"},
    {0x0452, "cy"},         {0x0453, "km"},         {0x0454, "lo"},      {0x0455, "my"},
    {0x0456, "gl"},         {0x0457, "kok"},        {0x0458, "mni"},     {0x0459, "sd-Deva"},
    {0x045A, "syr"},        {0x045B, "si"},         {0x045D, "iu"},      {0x045E, "am"},
    {0x0460, "ks"},         {0x0461, "ne"},         {0x0462, "fy"},      {0x0463, "ps"},
    {0x0464, "fil"},        {0x0465, "dv"},         {0x0467, "ff"},      {0x0468, "ha"},
    {0x046A, "yo"},         {0x046B, "qu-BO"},      {0x046C, "nso"},     {0x046D, "ba"},
    {0x046E, "lb"},         {0x046F, "kl"},         {0x0470, "ig"},      {0x0471, "kr"},
    {0x0472, "om"},         {0x0473, "ti"},         {0x0474, "gn"},      {0x0475, "haw"},
    {0x0476, "la"},         {0x0477, "so"},         {0x0478, "ii"},      {0x0479, "pap"},
    {0x047A, "arn"},        {0x047C, "moh"},        {0x047E, "br"},      {0x0480, "ug"},
    {0x0481, "mi"},         {0x0482, "oc"},         {0x0483, "co"},      {0x0484, "gsw"},
    {0x0485, "sah"},        {0x0486, "quc"},        {0x0487, "rw"},      {0x0488, "wo"},
    {0x048C, "prs"},        {0x0491, "gd"},         {0x0492, "ku"},      {0x0801, "ar-IQ"},
    {0x0804, "zh-CN"},      {0x0807, "de-CH"},      {0x0809, "en-GB"},   {0x080A, "es-MX"},
    {0x080C, "fr-BE"},      {0x0810, "it-CH"},      {0x0813, "nl-BE"},   {0x0814, "nn"},
    {0x0816, "pt-PT"},      {0x0818, "ro-MD"},      {0x0819, "ru-MD"},   {0x081A, "sr-Latn"},
    {0x081D, "sv-FI"},      {0x0820, "ur-IN"},      {0x082C, "az-Cyrl"}, {0x082E, "dsb"},
    {0x0832, "tn-BW"},      {0x083B, "se-SE"},      {0x083C, "ga"},      {0x083E, "ms-BN"},
    {0x0843, "uz-Cyrl"},    {0x0845, "bn"},         {0x0846, "pa-Arab"}, {0x0849, "ta-LK"},
    {0x0850, "mn-Mong-CN"}, {0x0859, "sd"},         {0x085D, "iu-Latn"}, {0x085F, "tzm"},
    {0x0861, "ne-IN"},      {0x086B, "qu-EC"},      {0x0873, "ti-ER"},   {0x0C01, "ar"},
    {0x0C04, "zh-HK"},      {0x0C07, "de-AT"},      {0x0C09, "en-AU"},   {0x0C0A, "es"},
    {0x0C0C, "fr-CA"},      {0x0C1A, "sr"},         {0x0C3B, "se-FI"},   {0x0C6B, "qu-PE"},
    {0x1001, "ar-LY"},      {0x1004, "zh-SG"},      {0x1007, "de-LU"},   {0x1009, "en-CA"},
    {0x100A, "es-GT"},      {0x100C, "fr-CH"},      {0x101A, "hr-BA"},   {0x103B, "smj-NO"},
    {0x1401, "ar-DZ"},      {0x1404, "zh-MO"},      {0x1407, "de-LI"},   {0x1409, "en-NZ"},
    {0x140A, "es-CR"},      {0x140C, "fr-LU"},      {0x141A, "bs"},      {0x143B, "smj"},
    {0x1801, "ary"},        {0x1809, "en-IE"},      {0x180A, "es-PA"},   {0x180C, "fr-MC"},
    {0x181A, "sr-Latn-BA"}, {0x183B, "sma-NO"},     {0x1C01, "aeb"},     {0x1C09, "en-ZA"},
    {0x1C0A, "es-DO"},      {0x1C1A, "sr-Cyrl-BA"}, {0x1C3B, "sms"},     {0x2001, "ar-OM"},
    {0x2009, "en-JM"},      {0x200A, "es-VE"},      {0x201A, "bs-Cyrl"}, {0x203B, "sms"},
    {0x2401, "ar-YE"},      {0x2409, "en-029"},     {0x240A, "es-CO"},   {0x240C, "fr-CD"},
    {0x241A, "sr-Latn-RS"}, {0x243B, "smn"},        {0x2801, "ar-SY"},   {0x2809, "en-BZ"},
    {0x280A, "es-PE"},      {0x280C, "fr-SN"},      {0x281A, "sr"},      {0x2C01, "ar-JO"},
    {0x2C09, "en-TT"},      {0x2C0A, "es-AR"},      {0x2C0C, "fr-CM"},   {0x2C1A, "sr-Latn-ME"},
    {0x3001, "ar-LB"},      {0x3009, "en-ZW"},      {0x300A, "es-EC"},   {0x300C, "fr-CI"},
    {0x301A, "sr-Cyrl-ME"}, {0x3401, "ar-KW"},      {0x3409, "en-PH"},   {0x340A, "es-CL"},
    {0x3801, "ar-AE"},      {0x3809, "en-ID"},      {0x380A, "es-UY"},   {0x380C, "fr-MA"},
    {0x3C01, "ar-BH"},      {0x3C09, "en-HK"},      {0x3C0A, "es-PY"},   {0x4001, "ar-QA"},
    {0x4009, "en-IN"},      {0x400A, "es-BO"},      {0x4409, "en-MY"},   {0x440A, "es-SV"},
    {0x4809, "en-SG"},      {0x480A, "es-HN"},      {0x4C0A, "es-NI"},   {0x500A, "es-PR"},
    {0x540A, "es-US"},      {0x580A, "es-419"}};

/// Macintosh language codes (Apple, "Font Names Table").
constexpr Language kMacLanguages[] = {
    {0, "en"},           {1, "fr"},   {2, "de"},       {3, "it"},        {4, "nl"},
    {5, "sv"},           {6, "es"},   {7, "da"},       {8, "pt"},        {9, "nb"},
    {10, "he"},          {11, "ja"},  {12, "ar"},      {13, "fi"},       {14, "el"},
    {15, "is"},          {16, "mt"},  {17, "tr"},      {18, "hr"},       {19, "zh-Hant"},
    {20, "ur"},          {21, "hi"},  {22, "th"},      {23, "ko"},       {24, "lt"},
    {25, "pl"},          {26, "hu"},  {27, "es"},      {28, "lv"},       {29, "se"},
    {30, "fo"},          {31, "fa"},  {32, "ru"},      {33, "zh-Hans"},  {34, "nl-BE"},
    {35, "ga"},          {36, "sq"},  {37, "ro"},      {38, "cs"},       {39, "sk"},
    {40, "sl"},          {41, "yi"},  {42, "sr"},      {43, "mk"},       {44, "bg"},
    {45, "uk"},          {46, "be"},  {47, "uz"},      {48, "kk"},       {49, "az-Cyrl"},
    {50, "az-Arab"},     {51, "hy"},  {52, "ka"},      {53, "ro-MD"},    {54, "ky"},
    {55, "tg"},          {56, "tk"},  {57, "mn-Mong"}, {58, "mn-Cyrl"},  {59, "ps"},
    {60, "ks"},          {61, "ku"},  {62, "sd"},      {63, "bo"},       {64, "ne"},
    {65, "sa"},          {66, "mr"},  {67, "bn"},      {68, "as"},       {69, "gu"},
    {70, "pa"},          {71, "or"},  {72, "ml"},      {73, "kn"},       {74, "ta"},
    {75, "te"},          {76, "si"},  {77, "my"},      {78, "km"},       {79, "lo"},
    {80, "vi"},          {81, "id"},  {82, "tl"},      {83, "ms"},       {84, "ms-Arab"},
    {85, "am"},          {86, "ti"},  {87, "om"},      {88, "so"},       {89, "sw"},
    {90, "rw"},          {91, "rn"},  {92, "ny"},      {93, "mg"},       {94, "eo"},
    {128, "cy"},         {129, "eu"}, {130, "ca"},     {131, "la"},      {132, "qu"},
    {133, "gn"},         {134, "ay"}, {135, "tt"},     {136, "ug"},      {137, "dz"},
    {138, "jv"},         {139, "su"}, {140, "gl"},     {141, "af"},      {142, "br"},
    {143, "iu"},         {144, "gd"}, {145, "gv"},     {146, "ga-Latg"}, {147, "to"},
    {148, "el-polyton"}, {149, "kl"}, {150, "az"},     {151, "nn"}};

template <size_t N>
QByteArray find(const Language (&languages)[N], quint16 id)
{
    const Language *found = std::lower_bound(
        std::begin(languages), std::end(languages), id,
        [](const Language &language, quint16 wanted) { return language.id < wanted; });
    return found != std::end(languages) && found->id == id ? QByteArray(found->tag) : QByteArray();
}

} // namespace

QByteArray windowsLanguageTag(quint16 id)
{
    return find(kWindowsLanguages, id);
}

QByteArray macLanguageTag(quint16 id)
{
    return find(kMacLanguages, id);
}

QByteArray cleanLanguageTag(QByteArrayView tag)
{
    constexpr qsizetype kLongestTag = 35; // RFC 5646, section 4.4.1
    const bool isTag = !tag.isEmpty() && tag.size() <= kLongestTag
        && std::all_of(tag.begin(), tag.end(), [](char c) {
               return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')
                   || c == '-';
           });
    return isTag ? tag.toByteArray() : QByteArray();
}

} // namespace lorva
