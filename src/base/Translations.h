// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace lorva {

// The program's texts in other languages than the English of the code. They are built in, one file
// for each of textLanguages(); English has one, too, which holds nothing but its singulars.

/// "en" and the languages that every text is translated into, as their files are named: "zh_CN".
QStringList textLanguages();

/// Which of textLanguages() serves whoever wants `wanted`: language tags or locale names, the best
/// one first ("zh-Hant-HK", "de_AT.UTF-8", "ja"). Chinese goes by its script, and without one by
/// its region. "en" when none of them is there.
QString textLanguageFor(const QStringList &wanted);

/// Lets tr() answer in `language`, one of textLanguages(); what the toolkit itself says follows
/// where its own texts are installed. QLocale's default follows, too, unless the system's locale is
/// one of that language. To be called once, with the application object and before
/// the first text is made. Thread: main.
void installTranslations(const QString &language);

} // namespace lorva
