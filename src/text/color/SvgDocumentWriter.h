// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/SvgDocument.h"

#include <QXmlStreamWriter>

namespace lorva {

/// Writes the marked elements of a document as a document of its own. Used once.
class SvgDocumentWriter
{
public:
    static constexpr char kLeftOut = 0;
    /// Written for what it says about those that lie in it.
    static constexpr char kShell = 1;
    static constexpr char kWhole = 2;

    /// `length` is that of all outlines of what is drawn.
    SvgDocumentWriter(const std::vector<SvgDocument::Element> &elements,
                      const std::vector<char> &marks, const SvgStyleSheet &sheet,
                      const SvgDocument::Colors &colors, double length);

    SvgDocument::Written write(const SvgDocument::Canvas &canvas);

private:
    void writeRoot(const SvgDocument::Canvas &canvas);
    void writeSheet();
    void writeElement(size_t index, const QString &name);
    void writePictureBox(const SvgDocument::Element &picture);
    void writeAttributes(const SvgDocument::Element &element, bool isRoot);
    /// Null where it may not stand after all.
    QString value(QStringView name, const QString &raw);
    bool isTooDense(QStringView dashes) const;

    const std::vector<SvgDocument::Element> &m_elements;
    const std::vector<char> &m_marks;
    const SvgStyleSheet &m_sheet;
    const SvgDocument::Colors &m_colors;
    const double m_length;
    bool m_isToBeMeasured = false;
    SvgDocument::Written m_written;
    QXmlStreamWriter m_writer;
};

} // namespace lorva
