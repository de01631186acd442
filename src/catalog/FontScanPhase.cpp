// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/GroupedNumber.h"
#include "catalog/CatalogTypes.h"

#include <QCoreApplication>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontScanPhase)
};

} // namespace

QString FontScanPhase::text() const
{
    switch (kind) {
    case Kind::enumerating:
        if (done == 0)
            return Texts::tr("Finding fonts…");
        return Texts::tr("Finding fonts… %1", nullptr, done).arg(groupedNumber(done));
    case Kind::scanning:
        return Texts::tr("Scanning %1 of %2 fonts", nullptr, total)
            .arg(groupedNumber(done), groupedNumber(total));
    case Kind::identifying:
        return Texts::tr("Identifying fonts… %1 of %2", nullptr, total)
            .arg(groupedNumber(done), groupedNumber(total));
    case Kind::preparing:
        break;
    }
    return Texts::tr("Preparing…");
}

} // namespace lorva
