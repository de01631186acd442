// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/GroupedNumber.h"
#include "catalog/CatalogTypes.h"

#include <QCoreApplication>

namespace lorva {

namespace {

QString translated(const char *text, int count = -1)
{
    return QCoreApplication::translate("FontScanPhase", text, nullptr, count);
}

} // namespace

QString FontScanPhase::text() const
{
    switch (kind) {
    case Kind::enumerating:
        if (done == 0)
            return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Finding fonts…"));
        return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Finding fonts… %1"), done)
            .arg(groupedNumber(done));
    case Kind::scanning:
        return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Scanning %1 of %2 fonts"), total)
            .arg(groupedNumber(done), groupedNumber(total));
    case Kind::identifying:
        return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Identifying fonts… %1 of %2"), total)
            .arg(groupedNumber(done), groupedNumber(total));
    case Kind::preparing:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Preparing…"));
}

} // namespace lorva
