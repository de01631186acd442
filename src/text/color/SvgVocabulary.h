// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>
#include <QString>
#include <QStringList>

#include <functional>
#include <span>
#include <vector>

namespace lorva {

// What of SVG and CSS may stand in a font's document: what draws outlines, colours and pictures,
// and nothing that asks for anything outside, or for work without end.

bool isSvgElement(QStringView name);
/// Of any element: geometry, and the properties of isSvgProperty(). References are read apart.
bool isSvgAttribute(QStringView name);
/// Presentation attributes, which style sheets set too.
bool isSvgProperty(QStringView name);

struct SvgDeclaration
{
    QString name;
    QString value;
};
/// The declarations of a style attribute or of a rule that may stand.
std::vector<SvgDeclaration> svgDeclarations(const QString &text);

/// Letters, digits and a few signs: no other ids are kept.
bool isPlainSvgId(QStringView id);
/// The ids in a value's "url(#id)".
QStringList svgUrlIds(QStringView value);
/// Whether the element is composed apart with that value.
bool isSvgLayer(QStringView name, QStringView value);
/// Whether the declaration has outlines stroked.
bool isSvgStroke(QStringView name, QStringView value);
/// The sum of the numbers in a value, all of them taken for positive: paths are not longer than a
/// few times that.
double svgNumberSum(QStringView value);

/// The value with its "var(--colorN, …)" replaced by the N-th colour, other variables by what
/// stands behind their comma, and the colours of the context, which are the text's, by
/// "currentColor".
QString svgResolvedValue(const QString &value, std::span<const QRgb> colors);
/// A colour as CSS writes it.
QString svgColorText(QRgb color);

} // namespace lorva
