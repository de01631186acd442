// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace lorva::test {

/// A language that anybody can read and that shows what is wrong with texts: "Font %1" becomes
/// "[Ƒôñţ %1 ~~]". No ASCII letter is left but in what the program puts into its places, every text
/// is longer by two fifths, and an ellipsis is "⋯", so that "…" is only ever what elision leaves.
class PseudoTranslator final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *disambiguation = nullptr,
                      int n = -1) const override;
};

} // namespace lorva::test
