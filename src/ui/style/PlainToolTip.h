// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextDocument>

namespace lorva {

/// A text as a tool tip shows it letter by letter: names come from fonts, and one with tags in it
/// would be read as markup. Thread: any.
inline QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace lorva
