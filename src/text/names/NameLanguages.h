// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace lorva {

/// The BCP 47 tag of a language id as Windows records of OpenType `name` hold it; empty for ids
/// that nobody has published.
QByteArray windowsLanguageTag(quint16 id);
/// The same for Macintosh records.
QByteArray macLanguageTag(quint16 id);
/// `tag` if it can be a BCP 47 tag by its characters and length, else empty.
QByteArray cleanLanguageTag(QByteArrayView tag);

} // namespace lorva
