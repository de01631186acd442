// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace lorva {

/// How the text of a record of OpenType `name` is written.
struct NameEncoding
{
    quint16 platform = 0;
    quint16 encoding = 0;
    /// Macintosh Roman has variants by language.
    quint16 language = 0;
};

/// The text of a record, line breaks as spaces; nothing for encodings that ICU does not convert.
/// Thread: any.
std::optional<QString> decodeName(NameEncoding encoding, QByteArrayView bytes);

} // namespace lorva
