// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QLabel>
#include <QRectF>

class QPainter;

namespace lorva {

/// A text of a sheet, as it is measured and drawn: plain, wrapped wherever it must be. The name of
/// a font may be one word of any length, and must not make a sheet wider. Thread: main.
struct WrappedText
{
    QString text;
    QFont font;
    /// The rest is left out and an ellipsis put; 0: no limit.
    int maximumLineCount = 0;
    bool isCentred = false;

    /// In whole points.
    int heightFor(int width) const;
    /// From the top of `rect` down, in the painter's pen, from the side where `direction` begins or
    /// in the middle.
    void draw(QPainter &painter, const QRectF &rect, Qt::LayoutDirection direction) const;
};

/// Wrapped text in the neutral panes' colour. Thread: main.
class SheetText final : public QLabel
{
    Q_OBJECT
public:
    /// `alpha`: of the text's colour on the ground; raised where it could not be read.
    SheetText(const QString &text, const QFont &font, double alpha, QWidget *parent);

    void setMaximumLineCount(int count) { m_maximumLineCount = count; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    WrappedText wrapped() const { return {text(), font(), m_maximumLineCount}; }

    const double m_alpha;
    int m_maximumLineCount = 0;
};

} // namespace lorva
