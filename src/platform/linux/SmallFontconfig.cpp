// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/SmallFontconfig.h"

#include "platform/linux/InterfaceFontChoice.h"

#include "base/FilePath.h"

#include <QLoggingCategory>
#include <QXmlStreamWriter>

namespace lorva {

Q_LOGGING_CATEGORY(interfaceFontsLog, "lorva.platform.interfacefonts", QtWarningMsg)

namespace {

void writeGlobs(QXmlStreamWriter &xml, const QString &list, const std::set<FilePath> &globs)
{
    xml.writeStartElement(list);
    for (const FilePath &glob : globs)
        xml.writeTextElement(QStringLiteral("glob"), glob.displayText());
    xml.writeEndElement();
}

/// Rules that leave nothing but `files`: their folders only, and in these nothing else.
QByteArray rulesForFiles(const std::set<FilePath> &files)
{
    std::set<FilePath> folders;
    for (const FilePath &file : files)
        folders.insert(file.parent());

    QByteArray rules;
    QXmlStreamWriter xml(&rules);
    xml.writeStartElement(QStringLiteral("fontconfig"));
    xml.writeEmptyElement(QStringLiteral("reset-dirs"));
    for (const FilePath &folder : folders)
        xml.writeTextElement(QStringLiteral("dir"), folder.displayText());
    xml.writeStartElement(QStringLiteral("selectfont"));
    writeGlobs(xml, QStringLiteral("acceptfont"), files);
    writeGlobs(xml, QStringLiteral("rejectfont"), {FilePath("*")});
    xml.writeEndElement();
    xml.writeEndElement();
    return rules;
}

/// The rules are XML, which carries only text.
bool isText(const FilePath &path)
{
    return path.isUtf8() && path.displayText().toUtf8() == path.bytes();
}

bool keepOnly(FcConfig *config, const std::set<QByteArray> &chosen)
{
    std::set<FilePath> files;
    for (const QByteArray &file : chosen) {
        if (isText(FilePath(file)))
            files.insert(FilePath(file));
    }
    const QByteArray rules = rulesForFiles(files);
    const auto *const bytes = reinterpret_cast<const FcChar8 *>(rules.constData());
    return FcConfigParseAndLoadFromMemory(config, bytes, FcFalse) && FcConfigBuildFonts(config);
}

} // namespace

void useFontsForLanguage(const QString &language)
{
    constexpr const char *kVariable = "FC_LANG";
    if (qEnvironmentVariableIsSet(kVariable))
        return;
    qputenv(kVariable, QString(language).replace(u'_', u'-').toLower().toLatin1());
    // Read once, and kept; the programs that we start are to see their own environment.
    FcStrSetDestroy(FcGetDefaultLangs());
    qunsetenv(kVariable);
}

void useSmallFontconfigForInterface()
{
    const FcConfigHandle config(FcInitLoadConfigAndFonts());
    if (!config || !keepOnly(config.get(), chooseInterfaceFontFiles(config.get()))) {
        qCWarning(interfaceFontsLog) << "the interface uses all fonts: no small configuration";
        return;
    }
    // Without this the next font list would look at the system's folders again and load all of
    // them.
    FcConfigSetRescanInterval(config.get(), 0);
    FcConfigSetCurrent(config.get());
}

} // namespace lorva
