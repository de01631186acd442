// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

/// The name of the person whose account this is: the first field of the account's comment, else
/// the login name; empty when neither is known. Thread: any.
QString userFullName();

} // namespace lorva
