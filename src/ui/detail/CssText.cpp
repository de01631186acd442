// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CssText.h"

#include "text/FontFeatures.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <map>

namespace lorva {

namespace {

constexpr FontTag kWeight = fontTag('w', 'g', 'h', 't');
constexpr FontTag kWidth = fontTag('w', 'd', 't', 'h');
constexpr FontTag kSlant = fontTag('s', 'l', 'n', 't');
constexpr FontTag kItalic = fontTag('i', 't', 'a', 'l');
constexpr FontTag kOpticalSize = fontTag('o', 'p', 's', 'z');

/// Hexadecimal escapes end with a space; a NUL and half a surrogate pair cannot be written at all.
QString cssString(const QString &text)
{
    QString result = QStringLiteral("\"");
    for (const char32_t c : text.toUcs4()) {
        if (c == 0 || (c >= 0xD800 && c < 0xE000))
            result += QChar(QChar::ReplacementCharacter);
        else if (c == U'"' || c == U'\\')
            result += QLatin1Char('\\') + QChar(char16_t(c));
        // "<" as well: the text may end up in a page's own style element.
        else if (c < 0x20 || (c >= 0x7F && c < 0xA0) || c == U'<' || c == 0x2028 || c == 0x2029)
            result += QStringLiteral("\\%1 ").arg(uint(c), 0, 16);
        else
            result += QString::fromUcs4(&c, 1);
    }
    return result + QLatin1Char('"');
}

/// Axis values have sixteen binary places; nobody sees the last ones.
QString cssNumber(double value)
{
    constexpr double kPlaces = 1000;
    const double rounded = std::round(value * kPlaces) / kPlaces;
    return QString::number(rounded == 0 ? 0 : rounded, 'g', 9);
}

QString setting(FontTag tag, const QString &value)
{
    return cssString(tagText(tag)) + QLatin1Char(' ') + value;
}

/// CSS takes tags of four characters from the space to the tilde.
bool isCssTag(FontTag tag)
{
    for (int shift = 24; shift >= 0; shift -= 8) {
        const quint32 byte = (tag >> shift) & 0xFF;
        if (byte < 0x20 || byte > 0x7E)
            return false;
    }
    return true;
}

/// Of the axes that the face has, what `font` has them at; by tag.
class AxisValues
{
public:
    explicit AxisValues(const Font &font)
    {
        for (const VariationAxis &axis : font.face()->axes())
            m_values.emplace(axis.tag, Value{axis, axis.defaultValue});
        take(font.face()->coordinates());
        take(font.variations());
    }

    std::optional<double> value(FontTag tag) const
    {
        const auto found = m_values.find(tag);
        return found == m_values.end() ? std::nullopt : std::optional(found->second.now);
    }
    /// A property says it.
    void leaveOut(FontTag tag) { m_values.erase(tag); }
    bool isDefault(FontTag tag) const
    {
        const auto found = m_values.find(tag);
        return found == m_values.end() || found->second.isDefault();
    }
    double clamped(FontTag tag, double value) const
    {
        const VariationAxis &axis = m_values.at(tag).axis;
        return std::max(axis.minValue, std::min(axis.maxValue, value));
    }

    QStringList settings() const
    {
        QStringList list;
        for (const auto &[tag, value] : m_values) {
            if (!value.isDefault() && isCssTag(tag))
                list << setting(tag, cssNumber(value.now));
        }
        return list;
    }

private:
    struct Value
    {
        VariationAxis axis;
        double now = 0;
        bool isDefault() const { return now == axis.defaultValue; }
    };

    void take(const std::vector<VariationSetting> &settings)
    {
        for (const VariationSetting &setting : settings) {
            const auto found = m_values.find(setting.tag);
            if (found != m_values.end() && std::isfinite(setting.value))
                found->second.now = clamped(setting.tag, setting.value);
        }
    }

    std::map<FontTag, Value> m_values;
};

/// Writes declarations, taking from the axes what has a property of its own.
class CssWriter
{
public:
    CssWriter(const DetailSpecimen &specimen, const FontStyleRecord &style)
        : m_specimen(specimen)
        , m_style(style)
    {
        if (!specimen.font.isNull())
            m_axes.emplace(specimen.font);
    }

    QString write(const QString &familyName)
    {
        add("font-family", cssString(familyName));
        addWeight();
        addStyle();
        addStretch();
        if (!m_specimen.font.isNull())
            add("font-size", cssNumber(m_specimen.font.pointSize()) + QLatin1String("px"));
        if (std::isfinite(m_specimen.letterSpacing) && cssNumber(m_specimen.letterSpacing) != u'0')
            add("letter-spacing", cssNumber(m_specimen.letterSpacing) + QLatin1String("em"));
        addFeatures();
        addOpticalSize();
        if (m_axes)
            addList("font-variation-settings", m_axes->settings());
        return m_text;
    }

private:
    void add(const char *property, const QString &value)
    {
        m_text += QLatin1String(property) + QLatin1String(": ") + value + QLatin1String(";\n");
    }
    void addList(const char *property, const QStringList &values)
    {
        if (!values.isEmpty())
            add(property, values.join(QLatin1String(", ")));
    }
    /// The axis's value, if the property can say it; the axis is then done with.
    std::optional<double> taken(FontTag tag, double least, double most)
    {
        const std::optional<double> value = m_axes ? m_axes->value(tag) : std::nullopt;
        if (!value || *value < least || *value > most)
            return std::nullopt;
        m_axes->leaveOut(tag);
        return value;
    }

    void addWeight()
    {
        const double own = double(std::clamp<qint64>(m_style.weight, 1, 1000));
        add("font-weight", cssNumber(taken(kWeight, 1, 1000).value_or(own)));
    }
    void addStyle()
    {
        const std::optional<double> italic = m_axes ? m_axes->value(kItalic) : std::nullopt;
        const bool isItalic = italic ? *italic == 1 : m_style.isItalic;
        if (italic && (*italic == 0 || *italic == 1))
            m_axes->leaveOut(kItalic);
        const bool isSlanted = m_axes && !m_axes->isDefault(kSlant);
        // One property cannot say both.
        const std::optional<double> slant =
            isSlanted && !(italic && isItalic) ? taken(kSlant, -90, 90) : std::nullopt;
        if (slant)
            add("font-style", QString(QLatin1String("oblique ") + cssNumber(-*slant) + "deg"));
        else
            add("font-style", isItalic ? QStringLiteral("italic") : QStringLiteral("normal"));
    }
    void addStretch()
    {
        if (!m_axes || m_axes->isDefault(kWidth))
            return;
        if (const std::optional<double> width = taken(kWidth, 0, 1000))
            add("font-stretch", cssNumber(*width) + QLatin1Char('%'));
    }
    void addOpticalSize()
    {
        const std::optional<double> size = m_axes ? m_axes->value(kOpticalSize) : std::nullopt;
        if (!size)
            return;
        const double byItself = m_axes->clamped(kOpticalSize, m_specimen.font.pointSize());
        if (cssNumber(*size) == cssNumber(byItself))
            m_axes->leaveOut(kOpticalSize);
        else if (m_axes->isDefault(kOpticalSize))
            add("font-optical-sizing", QStringLiteral("none"));
    }
    void addFeatures()
    {
        if (m_specimen.font.isNull())
            return;
        std::map<FontTag, quint32> wanted;
        for (const FeatureSetting &feature : m_specimen.font.features())
            wanted[feature.tag] = feature.value;
        const std::vector<FontFeature> offered = fontFeatures(*m_specimen.font.face());
        QStringList list;
        for (const auto &[tag, value] : wanted) {
            const bool isOwn = value == (isDefaultOn(offered, tag) ? 1U : 0U);
            // Spacing switches ligatures off, unless they are asked for.
            const bool isKept = m_specimen.letterSpacing != 0 && value > 0;
            if ((!isOwn || isKept) && isCssTag(tag))
                list << setting(tag, QString::number(value));
        }
        addList("font-feature-settings", list);
    }
    static bool isDefaultOn(const std::vector<FontFeature> &offered, FontTag tag)
    {
        return std::ranges::any_of(offered, [tag](const FontFeature &feature) {
            return feature.tag == tag && feature.isDefaultOn;
        });
    }

    const DetailSpecimen &m_specimen;
    const FontStyleRecord &m_style;
    std::optional<AxisValues> m_axes;
    QString m_text;
};

} // namespace

QString cssText(const DetailSpecimen &specimen, const QString &familyName,
                const FontStyleRecord &style)
{
    return CssWriter(specimen, style).write(familyName);
}

} // namespace lorva
