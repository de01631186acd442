// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/stores/OrganizationEdit.h"

namespace lorva::cli {

/// What an edit does, one line for each grouping, family and foundry.
/// `after` is what it leads to.
QStringList editLines(const OrganizationEdit &edit, const Organization &after);

/// That an import took in display settings under this key.
QString displaySettingsLine(const QString &key, const Organization &after);

} // namespace lorva::cli
