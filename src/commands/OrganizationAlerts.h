// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Alert.h"

namespace lorva {

/// Asks before a collection is deleted. Buttons: "Delete", "Cancel".
Alert deleteCollectionAlert();
/// Says what hiding a foundry does. Buttons: "Hide", "Cancel".
Alert hideFoundryAlert(const QString &foundryName);
/// A change that was refused: `reason` is fit to be shown. Button: "OK".
Alert refusedChangeAlert(const QString &reason);

} // namespace lorva
