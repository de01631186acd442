// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Arguments.h"
#include "cli/Specimen.h"

namespace lorva::cli {

/// The values of `lorvactl specimen`'s options; each fails with usage, naming the option.

/// "smcp,onum=0,ss01=2,-liga,+dlig": "-" and "=0" and "=off" are off, "+" and "=on" are on.
Result<std::vector<FeatureSetting>> featureList(QByteArrayView option, const QByteArray &value);
/// "wght=650,wdth=80".
Result<std::vector<VariationSetting>> variationList(QByteArrayView option, const QByteArray &value);
/// A well-formed BCP 47 tag; whether it is registered is not looked at.
Result<QByteArray> languageTag(QByteArrayView option, const QByteArray &value);
/// "ltr", "rtl" or "auto".
Result<TextDirection> textDirection(QByteArrayView option, const QByteArray &value);
/// "#RRGGBB".
Result<QColor> color(QByteArrayView option, const QByteArray &value);

} // namespace lorva::cli
