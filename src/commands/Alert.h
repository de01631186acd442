// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace lorva {

/// A question or a message to the user, as a value: decided and worded here, shown by whoever has a
/// window.
struct Alert
{
    enum class Style { informational, warning };
    /// `destructive` loses something; `cancel` is what Escape chooses.
    enum class Role { accept, destructive, cancel };
    struct Button
    {
        QString text;
        Role role = Role::accept;
        bool operator==(const Button &) const = default;
    };

    Style style = Style::informational;
    QString title;
    QString body;
    /// In the order of importance: the first is what Return chooses, unless it is destructive.
    std::vector<Button> buttons;
    /// Said after the body, more quietly; empty for nothing.
    QString note = {};

    bool operator==(const Alert &) const = default;
};

} // namespace lorva
