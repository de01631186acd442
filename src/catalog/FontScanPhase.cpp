// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/CatalogTypes.h"

#include <QCoreApplication>
#include <QLocale>

namespace lorva {

namespace {

QString translated(const char *text, int count = -1)
{
    return QCoreApplication::translate("FontScanPhase", text, nullptr, count);
}

QString grouped(int number)
{
    QLocale locale;
    // The "C" region would otherwise write 1234 without any grouping.
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

} // namespace

QString FontScanPhase::text() const
{
    switch (kind) {
    case Kind::enumerating:
        if (done == 0)
            return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Finding fonts…"));
        return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Finding fonts… %1"), done)
            .arg(grouped(done));
    case Kind::scanning:
        return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Scanning %1 of %2 fonts"), total)
            .arg(grouped(done), grouped(total));
    case Kind::identifying:
        return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Identifying fonts… %1 of %2"), total)
            .arg(grouped(done), grouped(total));
    case Kind::preparing:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("FontScanPhase", "Preparing…"));
}

} // namespace lorva
