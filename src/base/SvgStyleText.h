// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

/// True when the value names something outside of the document by "url(…)".
bool hasOutsideUrl(const QString &value);
/// A style sheet, or the declarations of a style attribute, without comments, at-rules (which fetch
/// other sheets and fonts) and anything that names something outside. Empty where escapes hide what
/// is meant. Thread: any.
QString safeStyleText(const QString &text);

} // namespace lorva
