// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace lorva {

// How the main window appears after the welcome. On Wayland, where a program cannot make its window
// transparent, only the content moves. Thread: main.

/// False where windows can be neither transparent nor placed.
bool canFadeWindows();
/// The window is there, but cannot be seen.
void concealWindow(QWidget &window);
/// It can be seen at once.
void showConcealedWindow(QWidget &window);
/// Fades the window in and lets `content`, which lies in it, grow to its size like a spring; with
/// reduced motion at once. The animations are children of the window by the name
/// "mainWindowReveal", and end with it.
void revealWindow(QWidget &window, QWidget &content);

} // namespace lorva
