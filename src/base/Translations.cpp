// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace lorva {

namespace {

const QString kEnglish = QStringLiteral("en");

void install(const QString &file, const QString &folder)
{
    // Owned by the application.
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(file, folder) || !QCoreApplication::installTranslator(translator))
        delete translator;
}

/// The locale that a name means, whatever encoding or variant it has behind it.
QLocale localeOf(const QString &name)
{
    return QLocale(name.section(u'.', 0, 0).section(u'@', 0, 0));
}

QString chinese(const QLocale &locale)
{
    return locale.script() == QLocale::TraditionalHanScript ? QStringLiteral("zh_TW")
                                                            : QStringLiteral("zh_CN");
}

/// Empty when the texts are not there in that language.
QString textLanguageFor(const QLocale &locale)
{
    if (locale.language() == QLocale::Chinese)
        return chinese(locale);
    const QString code = QLocale::languageToCode(locale.language());
    return textLanguages().contains(code) ? code : QString();
}

/// What POSIX calls the locale of numbers; the system's QLocale names the language of LANGUAGE
/// instead, and writes numbers by this one all the same.
QLocale localeOfNumbers()
{
    for (const char *variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return localeOf(name);
    }
    return QLocale::c();
}

/// Dates, numbers and lists stand in the texts and speak their language: in the way of the user's
/// own region, where one speaks it there.
void useLocaleOf(const QString &language)
{
    const QLocale system = localeOfNumbers();
    const bool isNeutral = system.language() == QLocale::C && language == kEnglish;
    if (!isNeutral && textLanguageFor(system) != language)
        QLocale::setDefault(QLocale(language));
}

} // namespace

QStringList textLanguages()
{
    return {kEnglish,
            QStringLiteral("de"),
            QStringLiteral("ja"),
            QStringLiteral("ko"),
            QStringLiteral("zh_CN"),
            QStringLiteral("zh_TW")};
}

QString textLanguageFor(const QStringList &wanted)
{
    for (const QString &name : wanted) {
        const QString language = textLanguageFor(localeOf(name));
        if (!language.isEmpty())
            return language;
    }
    return kEnglish;
}

void installTranslations(const QString &language)
{
    useLocaleOf(language);
    // The one installed last is asked first: what a language lacks is said in English.
    const QString ours = QStringLiteral(":/translations");
    install(QStringLiteral("lorva_") + kEnglish, ours);
    if (language == kEnglish)
        return;
    install(QStringLiteral("qtbase_") + language,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(QStringLiteral("lorva_") + language, ours);
}

} // namespace lorva
