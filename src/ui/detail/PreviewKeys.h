// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/CaretMotion.h"

#include <QString>

#include <optional>

class QKeyEvent;

namespace lorva {

/// What a key asks of the large preview.
struct EditCommand
{
    enum class Kind {
        move,
        type,
        eraseBefore,
        eraseAfter,
        eraseWordBefore,
        eraseWordAfter,
        undo,
        redo,
        cut,
        copy,
        paste,
        selectAll,
        leave
    };

    Kind kind = Kind::move;
    CaretMove move = CaretMove::left;
    bool selects = false;
    /// Of `type`.
    QString text;

    bool operator==(const EditCommand &) const = default;
};

/// Nothing: the key is not the preview's, but the page's or the window's.
std::optional<EditCommand> editCommandFor(const QKeyEvent &event);

} // namespace lorva
