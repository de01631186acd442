// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/StoredValue.h"

#include <QLoggingCategory>

namespace lorva {

Q_LOGGING_CATEGORY(storesLog, "lorva.model.stores", QtCriticalMsg)

void noteUnreadable(const QString &key, const Error &why)
{
    qCInfo(storesLog).noquote() << key << "is not readable:" << why.detail;
}

} // namespace lorva
