// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>
#include <QImage>

namespace lorva {

/// A background to choose, or the tile that adds one: 72 by 48 points with room for the ring around
/// the chosen one. A radio button to assistive technology; the adding one a button. Thread: main.
class ImageThumbnail final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    enum class Kind { builtIn, user, adding };
    static constexpr QSize kImageSize{72, 48};

    /// `id`: of a built-in image, or the user's file name.
    ImageThumbnail(Kind kind, const QString &id, const QString &name, QWidget *parent);

    Kind kind() const { return m_kind; }
    const QString &id() const { return m_id; }
    /// Without it a built-in image draws itself, and any other is an empty tile.
    void setImage(const QImage &image);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void removalRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void paintTile(QPainter &painter, const QRectF &box);
    void paintPlus(QPainter &painter, const QRectF &box) const;

    const Kind m_kind;
    const QString m_id;
    QImage m_image;
};

} // namespace lorva
