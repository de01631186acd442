// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"

#include <QSet>

namespace lorva {

/// Lets the styles of a library that is read from a file share the memory of equal texts: a library
/// of 100,000 faces has some dozen labels, and nearly every id is the PostScript name once more.
///
/// Thread: any, one at a time.
class SharedTexts
{
public:
    void share(FontStyleRecord &style)
    {
        if (style.id == style.postScriptName)
            style.id = style.postScriptName;
        style.label = *m_labels.insert(style.label);
        if (style.fileURL && style.fileURL == m_lastFile)
            style.fileURL = m_lastFile;
        else if (style.fileURL)
            m_lastFile = *style.fileURL;
    }

    void shareFamilyName(QString &name)
    {
        if (name == m_lastFamily)
            name = m_lastFamily;
        else
            m_lastFamily = name;
    }

private:
    QSet<QString> m_labels;
    QString m_lastFamily;
    FilePath m_lastFile;
};

/// A weight that a scan gives.
inline bool isPlausibleWeight(qint64 weight)
{
    return weight >= 100 && weight <= 900;
}

} // namespace lorva
