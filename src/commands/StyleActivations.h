// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/Activation.h"
#include "model/records/FontRecords.h"

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace lorva {

class ActivationState;
class LorvaAppModel;

/// Which styles of a family are switched on, each by itself, and which go together.
struct StyleActivations
{
    /// By style id. A style without a file, or of which nothing is known yet, is not in it.
    QHash<QString, FontFamilyActivation> activationByStyleID;
    /// By style id, the labels of the family's other styles in the same file, in the order for
    /// people; of very many the first, and how many more; of long ones the beginning. A style that
    /// is alone in its file is not in it.
    QHash<QString, QStringList> labelsInSameFile;

    bool operator==(const StyleActivations &) const = default;
};

/// Adds what the state says of each of the family's styles by itself. Looks at the disk where the
/// state does. Thread: any.
void addStyleActivations(const FontFamilyRecord &family, const ActivationState &state,
                         StyleActivations &found);

/// What is known now; never looks at the disk. Of a family that is switched as a whole its styles
/// are, too. Thread: main.
StyleActivations styleActivations(LorvaAppModel &model, const FontFamilyRecord &family);

/// The same, with a look on a worker at the files of a family of which only some styles are on.
///
/// Holds the model, which outlives it. Thread: main.
class StyleActivationLook final
{
public:
    explicit StyleActivationLook(LorvaAppModel &model);
    ~StyleActivationLook();

    /// More is known now of a family that was asked for.
    std::function<void()> onChange;
    StyleActivations of(const FontFamilyRecord &family);

private:
    void look(const FontFamilyRecord &family);

    LorvaAppModel &m_model;
    /// What was looked at last: a second look would find the same.
    QString m_familyName;
    std::weak_ptr<const ActivationState> m_state;
    QThreadPool m_pool;
    /// Whatever m_pool still works at is dropped with it.
    QObject m_guard;
};

} // namespace lorva
