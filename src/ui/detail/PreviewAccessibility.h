// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

class DetailPreviewView;

// The large preview to assistive technology: a text of several lines that can be edited. Thread:
// main.

/// Once for the process; more often does nothing.
void installPreviewAccessibility();
/// Its text was `before`.
void announceText(DetailPreviewView &view, const QString &before);
/// Its caret or its selection is another one.
void announceCaret(DetailPreviewView &view);

} // namespace lorva
