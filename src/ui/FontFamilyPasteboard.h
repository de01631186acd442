// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

#include <memory>

namespace lorva {

// Families on the pasteboard and in a drag. Thread: main.

/// The MIME type of family names: UTF-8, joined by line feeds.
inline constexpr char kFontFamilyNamesMimeType[] = "vantrel.lorva.fontFamilyNames";

/// The names for our own windows, and the font files for every other program (none: left out).
std::unique_ptr<QMimeData> makeFontFamilyMimeData(const QStringList &familyNames,
                                                  const QList<QUrl> &fontFiles);
/// The names that a drag carries, without empty ones and doubles; empty when it carries none, or
/// more than any library has. A drag with names is never a drop of files.
QStringList fontFamilyNames(const QMimeData &data);

} // namespace lorva
