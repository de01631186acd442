// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/UpdateAlerts.h"

namespace lorva {

Alert updateAlert(const UpdateOutcome &, const QString &)
{
    return {};
}

Alert noUpdatesAlert(const std::optional<Error> &)
{
    return {};
}

} // namespace lorva
