// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/SvgDocument.h"

#include <QXmlStreamReader>

namespace lorva {

/// Reads a document into elements and style sheets, leaving out what may not stand. Used once.
class SvgDocumentReader
{
public:
    explicit SvgDocumentReader(const QByteArray &xml);

    Result<SvgDocument> read();

private:
    void take(QXmlStreamReader::TokenType token);
    void beginElement();
    void addElement(const QString &name);
    void addAttribute(SvgDocument::Element &element, const QString &key, const QString &value);
    void addReference(SvgDocument::Element &element, const QString &value);
    void addStyle(SvgDocument::Element &element, const QString &value);
    QString carriedPicture(SvgDocument::Element &element, const QString &value);

    QXmlStreamReader m_reader;
    SvgDocument m_document;
    std::vector<size_t> m_open;
    qint64 m_picturePixels = 0;
    bool m_isTooMuch = false;
};

/// The bytes themselves, or what they hold compressed (gzip). Fails with `tooLarge` beyond
/// kMaxSvgDocumentBytes, and with `malformed`.
Result<QByteArray> inflatedSvg(QByteArrayView bytes);

} // namespace lorva
