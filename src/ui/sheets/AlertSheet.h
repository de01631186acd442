// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Alert.h"

#include <functional>

class QWidget;

namespace lorva {

/// Shows the alert as a sheet of `window`, which takes no other input until it is answered. `done`
/// gets the index of the chosen button; the cancelling one's for Escape (the last one's where none
/// cancels); may be empty. Never called when the window goes first. What a window shows as sheets
/// comes one after the other. Returns at once. Thread: main.
void presentAlert(QWidget &window, const Alert &alert, std::function<void(int button)> done);

/// True while the window shows a sheet of any kind: what reaches it past the sheet (an exported
/// menu bar, another start) is not to act.
bool hasAlertSheet(const QWidget &window);

} // namespace lorva
