// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

/// The maker's bare name out of a manufacturer text, without trade marks and legal forms; may be
/// empty. Thread: any.
///
///     "Klim Type Foundry" → "Klim"    "Foo Type Foundry, Inc." → "Foo"    "Foundry" → "Foundry"
///     "株式会社モリサワ" → "モリサワ"
QString cleanFoundryName(const QString &manufacturer);

/// The foundry that a family belongs to by its own name, its manufacturer text and the names by
/// which makers are also known; empty for none. Thread: any.
QString foundryNameOf(const QString &familyName, const QString &manufacturer);

/// What a foundry is known by in stored corrections: the name in folded case with a hyphen for each
/// run of other characters than letters, their marks and digits, none at the ends ("Off Type" →
/// "off-type"). A name without any of these gives a hash of itself. The same in every locale, and
/// for composed and decomposed letters. Thread: any.
QString foundryID(const QString &name);

} // namespace lorva
