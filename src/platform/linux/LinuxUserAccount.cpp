// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/UserAccount.h"

namespace lorva {

QString userFullName()
{
    return {};
}

} // namespace lorva
