// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/preview/FontResolver.h"

#include <QColor>
#include <QImage>
#include <QObject>
#include <QPoint>

#include <memory>
#include <optional>

class QPainter;

namespace lorva {

/// A style's name in its own face, as pixels.
struct StyleNamePicture
{
    /// Premultiplied; null when nothing is to be drawn.
    QImage image;
    /// The image's top left, in device pixels from the baseline's left end.
    QPoint devicePosition;
    /// Points that the name takes on the line.
    double width = 0;
    /// False: the face is not at hand, or lacks letters of the name, and the name has to be written
    /// in the interface's font.
    bool isOwnFace = false;
};

/// How a name is drawn.
struct StyleNameLook
{
    QString text;
    /// Points; longer names end in an ellipsis.
    double room = 0;
    double devicePixelRatio = 1;
    QColor color;

    bool operator==(const StyleNameLook &) const = default;
};

inline constexpr double kStyleNamePointSize = 24;

/// Thread: any.
StyleNamePicture drawStyleName(const Font &font, const StyleNameLook &look);

/// The name of a style row: gets the style's face, on a worker where it is not at hand, and has the
/// name drawn in it. A row names its style in any case: a face that cannot write the name, or
/// cannot be loaded, leaves it to the interface's font.
///
/// Each setStyle() supersedes the ones before. Thread: main; workers see copies of values only.
class StyleRowName final : public QObject
{
    Q_OBJECT
public:
    explicit StyleRowName(std::shared_ptr<FontResolver> resolver, QObject *parent = nullptr);
    ~StyleRowName() override;

    /// `look`: as it will probably be painted; a worker makes the pixels for it.
    void setStyle(const QString &familyName, const FontStyleRecord &style, bool prefersWorker,
                  const StyleNameLook &look);
    /// The pixels for a look; null while the face is awaited.
    const StyleNamePicture *picture(const StyleNameLook &look);
    bool isWaiting() const;
    /// The face is not wanted any more.
    void stopWaiting();
    /// The face could not be loaded.
    bool isMissing() const { return m_font && m_font->isStandIn(); }

Q_SIGNALS:
    /// The face has come.
    void changed();

private:
    struct Wanted;

    void request(const QString &familyName, const FontStyleRecord &style,
                 const StyleNameLook &look);

    const std::shared_ptr<FontResolver> m_resolver;
    const std::shared_ptr<Wanted> m_wanted;
    quint64 m_generation = 0;
    std::optional<Font> m_font;
    StyleNamePicture m_picture;
    /// What m_picture was made for.
    std::optional<StyleNameLook> m_look;
};

} // namespace lorva
