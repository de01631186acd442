// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FaceDescribing.h"

#include "text/FontLimits.h"

#include <QCryptographicHash>

#include <algorithm>

namespace lorva {

namespace {

QString firstText(const NameTable &names, NameId preferred, NameId other)
{
    const QString text = names.text(preferred, kMaxNameBytes);
    return text.isEmpty() ? names.text(other, kMaxNameBytes) : text;
}

QString asciiLettersAndDigits(const QString &text)
{
    QString kept;
    for (const QChar c : text)
        if (c.unicode() < 0x80 && c.isLetterOrNumber())
            kept.append(c);
    return kept;
}

/// The family part of a generated name. A family without ASCII letters lends the part of its
/// PostScript name before the hyphen, which is ASCII by rule.
QString postScriptPrefix(const NameTable &names)
{
    QString prefix =
        asciiLettersAndDigits(names.text(NameId::variationsPostScriptPrefix, kMaxNameBytes));
    if (prefix.isEmpty())
        prefix = asciiLettersAndDigits(familyName(names));
    if (prefix.isEmpty())
        prefix = asciiLettersAndDigits(
            names.text(NameId::postScript, kMaxNameBytes).section(u'-', 0, 0));
    return prefix;
}

/// "_750wght": Technical Note 5902 writes values with as few decimals as tell 16.16 numbers apart.
QString axisPart(const FvarAxis &axis, double value)
{
    if (value == axis.defaultValue)
        return {};
    return u'_' + QString::number(value, 'g', 7) + tagText(axis.tag).trimmed();
}

QString arbitraryInstanceSuffix(const FvarTable &fvar, const FvarInstance &instance)
{
    QString suffix;
    for (size_t i = 0; i < fvar.axes.size(); ++i)
        suffix += axisPart(fvar.axes[i], instance.coordinates[i]);
    return suffix;
}

/// The last resort of Technical Note 5902: the prefix, a hash of the name, and three dots.
QString shortened(const QString &name, const QString &prefix)
{
    if (name.size() <= kMaxPostScriptNameLength)
        return name;
    const QByteArray hash =
        QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1).toHex().toUpper();
    return prefix.left(kMaxPostScriptNameLength - 44) + u'-' + QString::fromLatin1(hash) + u"...";
}

FaceDescriptor describeDefault(const FaceFacts &facts, int faceIndex)
{
    const std::vector<double> standard = facts.fvar.defaultCoordinates();
    return {{faceIndex, -1},
            familyName(facts.names),
            styleName(facts.names),
            facts.names.text(NameId::postScript, kMaxNameBytes),
            traitsOfInstance(facts.traits, facts.fvar, standard),
            facts.names.text(NameId::manufacturer, kMaxNameBytes)};
}

} // namespace

bool FaceFacts::hasReadableName() const
{
    constexpr NameId kNaming[] = {NameId::typographicFamily, NameId::family, NameId::postScript,
                                  NameId::full};
    return std::any_of(std::begin(kNaming), std::end(kNaming),
                       [this](NameId id) { return !names.text(id, kMaxNameBytes).isEmpty(); });
}

FaceFacts readFaceFacts(const OpenedFile &file, const SfntDirectory &directory,
                        NameSelection selection)
{
    FaceFacts facts;
    facts.fvar = readFvar(file, directory);
    facts.nameBytes = readTable(file, directory, fontTag('n', 'a', 'm', 'e'), kMaxNameTableBytes);
    if (facts.fvar.instances.empty() && selection == NameSelection::withInstances)
        selection = NameSelection::essential;
    facts.names = NameTable(facts.nameBytes, selection);
    facts.traits = readTraits(file, directory);
    return facts;
}

std::vector<FaceDescriptor> describeFace(const FaceFacts &facts, int faceIndex, size_t room)
{
    std::vector<FaceDescriptor> descriptors;
    const std::vector<FvarInstance> &instances = facts.fvar.instances;
    const FaceDescriptor standard = describeDefault(facts, faceIndex);
    const bool isNamed =
        std::any_of(instances.begin(), instances.end(),
                    [&](const FvarInstance &i) { return facts.fvar.isDefault(i); });
    if (!isNamed && room > 0)
        descriptors.push_back(standard);
    for (size_t i = 0; i < instances.size() && descriptors.size() < room; ++i) {
        FaceDescriptor descriptor = standard;
        descriptor.key.namedInstance = int(i);
        descriptor.styleName = instanceName(facts, instances[i]);
        descriptor.postScriptName = instancePostScriptName(facts, instances[i]);
        descriptor.traits = traitsOfInstance(facts.traits, facts.fvar, instances[i].coordinates);
        descriptors.push_back(std::move(descriptor));
    }
    return descriptors;
}

QString instanceName(const FaceFacts &facts, const FvarInstance &instance)
{
    return facts.names.text(instance.nameId, kMaxNameBytes);
}

QString instancePostScriptName(const FaceFacts &facts, const FvarInstance &instance)
{
    constexpr quint16 kNoName = 0xFFFF;
    if (instance.postScriptNameId != kNoName) {
        QString own = facts.names.text(instance.postScriptNameId, kMaxNameBytes);
        if (!own.isEmpty())
            return own;
    }
    if (facts.fvar.isDefault(instance)) {
        QString ofFace = facts.names.text(NameId::postScript, kMaxNameBytes);
        if (!ofFace.isEmpty())
            return ofFace;
    }
    const QString prefix = postScriptPrefix(facts.names);
    const QString style = asciiLettersAndDigits(instanceName(facts, instance));
    if (!style.isEmpty())
        return shortened(prefix + u'-' + style, prefix);
    return shortened(prefix + arbitraryInstanceSuffix(facts.fvar, instance), prefix);
}

std::vector<QString> readFamilyNames(const OpenedFile &file, const SfntDirectory &directory)
{
    const QByteArray bytes =
        readTable(file, directory, fontTag('n', 'a', 'm', 'e'), kMaxNameTableBytes);
    return NameTable(bytes, NameSelection::families).familyNames();
}

QString familyName(const NameTable &names)
{
    return firstText(names, NameId::typographicFamily, NameId::family);
}

QString styleName(const NameTable &names)
{
    return firstText(names, NameId::typographicStyle, NameId::style);
}

} // namespace lorva
