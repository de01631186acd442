// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "catalog/Prewarming.h"
#include "catalog/RepresentativeStyle.h"
#include "catalog/VariableWeight.h"
#include "model/records/FontFamilyList.h"
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

class FaceResolver;

/// Families with the tables behind their look-ups made, for FontLibraryService::setFamilies().
///
/// A value; empty by default. Thread: any.
class PreparedFamilies
{
public:
    PreparedFamilies() = default;

private:
    friend class FontLibraryService;
    explicit PreparedFamilies(std::shared_ptr<const FaceResolver> resolver)
        : m_resolver(std::move(resolver))
    {
    }

    std::shared_ptr<const FaceResolver> m_resolver;
};

/// The front of the font catalog: runs scans and turns family, style and size into a usable font.
///
/// Owns: the loader, the resolve workers and the pre-warm; its destructor stops and waits for all
/// of them.
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
        /// Where what scans found out outlives the process; empty: nowhere.
        FilePath cacheFileURL = {};
        /// False for a visitor: the file is read but left as it is.
        bool savesCache = true;
        /// The time, for the rest after a failed look-up; empty: the steady clock.
        std::function<std::chrono::steady_clock::time_point()> now = {};
    };

    explicit FontLibraryService(Dependencies dependencies, QObject *parent = nullptr);
    ~FontLibraryService() override;

    using ProgressCallback = std::function<void(const FontScanPhase &)>;
    using CatalogCallback = std::function<void(FontCatalogResult)>;

    /// Walks `watchedFolders`, scans them and the available fonts off the main thread, and hands
    /// the result over on the main thread. What resolves stays as it is until setFamilies(). A
    /// load asked for while one runs is run after it. `progress` is called on the main thread, with
    /// at most some thirty reports a second.
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

    /// Has these faces resolved into the caches on a thread of low priority, in this order, in
    /// place of what a running pre-warm has not come to. At most kPrewarmFamilies families, each
    /// once.
    void prewarm(std::vector<PrewarmFace> faces, double pointSize);

    /// Makes the tables behind the look-ups: tens of milliseconds for a large library. Thread: any.
    PreparedFamilies prepareFamilies(FontFamilyList families) const;
    /// From now on names stand for the faces of these families, and every cache starts empty.
    /// Nothing changes for an empty value. Takes microseconds: what it replaces dies on a worker.
    void setFamilies(PreparedFamilies families);
    /// For a few families; the tables are made when first needed.
    void setFamilies(FontFamilyList families);

    /// How the weight slider moves a style; nothing when its face has no weight axis that it could
    /// move on. May read the file. Thread: any.
    std::optional<VariableWeight> variableWeight(const QString &familyName,
                                                 const FontStyleRecord &style) const;
    /// The style at a weight of its axis, nearest to `weight`. Thread: any.
    Font fontAtWeight(const QString &familyName, const VariableWeight &variable, double weight,
                      double pointSize) const;
    /// The names of the other families with a face in any font file of `familyNames`, in catalog
    /// order: what happens to these files happens to those families. The first question after
    /// setFamilies() makes an index: some ten milliseconds for 100,000 faces. Thread: any.
    QStringList familiesSharingFiles(const QStringList &familyNames) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace lorva
