// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/Activation.h"
#include "model/records/FontRecords.h"

#include <QHash>
#include <QStringList>

namespace lorva {

class LorvaAppModel;

/// Which styles of a family are switched on, each by itself, and which go together.
struct StyleActivations
{
    /// By style id. A style without a file, or of which nothing is known yet, is not in it.
    QHash<QString, FontFamilyActivation> activationByStyleID;
    /// By style id, the labels of the family's other styles in the same file, in the order for
    /// people; of very many the first, and how many more. A style that is alone in its file is not
    /// in it.
    QHash<QString, QStringList> labelsInSameFile;

    bool operator==(const StyleActivations &) const = default;
};

/// What is known now; never looks at the disk. Thread: main.
StyleActivations styleActivations(LorvaAppModel &model, const FontFamilyRecord &family);

} // namespace lorva
