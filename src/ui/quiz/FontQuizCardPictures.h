// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/preview/FontResolver.h"
#include "ui/quiz/FontQuizCard.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace lorva {

/// The pictures of the cards that are seen or may be seen next. Faces are resolved and painted by
/// workers.
///
/// Thread: main.
class FontQuizCardPictures final : public QObject
{
    Q_OBJECT
public:
    using Picture = std::shared_ptr<const FontQuizCardPicture>;

    FontQuizCardPictures(std::shared_ptr<FontResolver> resolver, QObject *parent);
    ~FontQuizCardPictures() override;

    /// All pictures are painted anew when it is another one.
    void setLook(const FontQuizCardLook &look);
    const FontQuizCardLook &look() const { return m_look; }
    /// Lets go of all others. The first ones come first.
    void want(const std::vector<FontQuizCard> &cards);
    /// Null until it has arrived.
    Picture find(const QString &familyName) const;
    /// All that are wanted have arrived.
    bool isComplete() const;
    /// A new catalog may hold the faces that could not be loaded.
    void retryStandIns();

    std::function<void(const QString &familyName)> onArrived;

private:
    struct Entry
    {
        FontQuizCard card;
        Picture picture;
        /// Cleared when nobody waits for it any more.
        std::shared_ptr<std::atomic<bool>> isWanted;
    };

    void request(Entry &entry);
    void accept(const QString &familyName, const std::shared_ptr<std::atomic<bool>> &ticket,
                std::shared_ptr<FontQuizCardPicture> picture);
    void dropUnwanted(const std::vector<FontQuizCard> &cards);

    const std::shared_ptr<FontResolver> m_resolver;
    FontQuizCardLook m_look;
    std::map<QString, Entry> m_entries;
};

} // namespace lorva
