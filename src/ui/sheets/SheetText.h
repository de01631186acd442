// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace lorva {

/// Plain text that wraps wherever it must: the name of a font may be one word of any length, and
/// must not make a sheet wider. Thread: main.
class SheetText final : public QLabel
{
    Q_OBJECT
public:
    SheetText(const QString &text, const QFont &font, QWidget *parent);

    /// The rest is left out and an ellipsis put; 0: no limit.
    void setMaximumLineCount(int count) { m_maximumLineCount = count; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_maximumLineCount = 0;
};

} // namespace lorva
