// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "catalog/FamilyIdentifier.h"
#include "catalog/RepresentativeStyle.h"
#include "platform/AvailableFonts.h"
#include "text/Font.h"

#include <QImage>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace lorva {

/// What a resolution gives: the font, and what the request's `prepare` made of it on the worker.
struct ResolvedFace
{
    Font font;
    QImage prepared;
};

/// One request of a face, waiting for a worker.
struct PendingResolve
{
    QString familyName;
    /// Absent: the family's default face.
    std::optional<FontStyleRecord> style;
    double pointSize = 0;
    /// Thread: worker. Turns the font into pixels, so that the main thread only blits. May be
    /// empty.
    std::function<QImage(const Font &)> prepare;
    /// Thread: worker. False when nobody waits any more; the request is then dropped before any
    /// work, and `completion` is not called. May be empty (always wanted). Must not touch widgets.
    std::function<bool()> isWanted;
    /// Thread: main.
    std::function<void(const ResolvedFace &)> completion;
};

/// The front of the font catalog: runs scans and turns family, style and size into a usable font.
///
/// Owns: the loader and the resolve workers; its destructor stops and waits for both.
/// Thread: main, except where a function says otherwise. Completions arrive on the main thread, and
/// only while the service lives. Failure: a face that cannot be found gives the system font of the
/// size, marked isStandIn(), and is not looked for again for 10 seconds.
class FontLibraryService final : public QObject
{
    Q_OBJECT
public:
    static constexpr int kMaxResolveWorkers = 3;

    struct Dependencies
    {
        std::shared_ptr<const AvailableFonts> availableFonts;
        std::shared_ptr<const SystemFontLocator> systemFont;
        /// May be null: families then stay without scripts and alternate names.
        std::shared_ptr<const FamilyIdentifier> identifier = {};
        /// The time, for the rest after a failed look-up; empty: the steady clock.
        std::function<std::chrono::steady_clock::time_point()> now = {};
    };

    explicit FontLibraryService(Dependencies dependencies, QObject *parent = nullptr);
    ~FontLibraryService() override;

    using ProgressCallback = std::function<void(const FontScanPhase &)>;
    using CatalogCallback = std::function<void(FontCatalogResult)>;

    /// Walks `watchedFolders`, scans them and the available fonts off the main thread, and hands
    /// the result over on the main thread. A load asked for while one runs is run after it.
    /// `progress` is called on the main thread, with at most some thirty reports a second.
    void loadCatalog(std::vector<FilePath> watchedFolders, ProgressCallback progress,
                     CatalogCallback done);
    /// Ends the running scan early; its callback is not called.
    void cancelLoad();

    /// Cache look-up only. Thread: any.
    std::optional<Font> cachedFont(const QString &familyName,
                                   const std::optional<FontStyleRecord> &style,
                                   double pointSize) const;
    /// Always gives a font, on the calling thread; a null one only on a system without fonts.
    /// Thread: any.
    Font resolve(const QString &familyName, const std::optional<FontStyleRecord> &style,
                 double pointSize) const;
    /// Queues a request; the newest is served first, by at most three workers.
    void resolveAsync(PendingResolve request);

    /// Tells the index which faces a family name stands for; loadCatalog() does it by itself, a
    /// catalog that comes from elsewhere (a snapshot, a test) is told here.
    void setFamilies(const std::vector<FontFamilyRecord> &families);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace lorva
