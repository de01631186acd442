// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/GroupedNumber.h"

#include <QLocale>

namespace lorva {

QString groupedNumber(qint64 number)
{
    QLocale locale;
    // The "C" region would otherwise write 1234 without any grouping.
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

} // namespace lorva
