// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontLibraryService.h"

#include "base/Trace.h"
#include "catalog/FaceResolver.h"
#include "catalog/FontCatalogLoader.h"
#include "catalog/MainThreadQueue.h"
#include "catalog/WorkerThreads.h"
#include "install/WatchedFontRegistrar.h"
#include "platform/ThreadPriority.h"

#include <QCoreApplication>
#include <QThread>

#include <chrono>
#include <deque>
#include <mutex>

namespace lorva {

namespace {

/// Lets some thirty reports a second through, and each new phase's first at once.
class ProgressThrottle
{
public:
    bool lets(const FontScanPhase &phase)
    {
        const auto now = std::chrono::steady_clock::now();
        if (m_last && m_last->kind == phase.kind
            && now - m_lastTime < std::chrono::milliseconds(33))
            return false;
        m_last = phase;
        m_lastTime = now;
        return true;
    }

private:
    std::optional<FontScanPhase> m_last;
    std::chrono::steady_clock::time_point m_lastTime;
};

} // namespace

struct FontLibraryService::Private
{
    /// One request of a scan, from its asking to the delivery of its result.
    struct Load
    {
        std::vector<FilePath> folders;
        ProgressCallback progress;
        CatalogCallback done;
        std::stop_source stop;
    };

    explicit Private(Dependencies given)
        : dependencies(std::move(given))
        , systemFont(std::make_shared<SystemFont>(dependencies.systemFont))
        , loader({dependencies.availableFonts ? dependencies.availableFonts
                                              : std::make_shared<NoAvailableFonts>(),
                  dependencies.cacheFileURL, dependencies.savesCache})
        , faceResolver(makeResolver(makeFamilyList()))
    {
    }

    ~Private()
    {
        // Loads that wait behind the running one were never started.
        if (!loads.empty())
            loads.front()->stop.request_stop();
        cancelPrewarm();
    }

    std::shared_ptr<const FaceResolver> makeResolver(FontFamilyList families) const
    {
        const SteadyClock now =
            dependencies.now ? dependencies.now : SteadyClock(std::chrono::steady_clock::now);
        return std::make_shared<FaceResolver>(std::move(families), systemFont, now);
    }

    std::shared_ptr<const FaceResolver> currentResolver() const
    {
        const std::lock_guard lock(resolverLock);
        return faceResolver;
    }

    void install(std::shared_ptr<const FaceResolver> resolver)
    {
        // What it has not come to is of the old catalog.
        cancelPrewarm();
        // Nobody waits for its names: a face is first looked for in its own file.
        prewarmThread.push([resolver] { resolver->prepareLookUps(); });
        {
            const std::lock_guard lock(resolverLock);
            faceResolver.swap(resolver);
        }
        // Freeing the caches of a large library takes longer than a frame.
        prewarmThread.push([old = std::move(resolver)] {});
    }

    void cancelPrewarm() const { prewarmTask.request_stop(); }

    void startLoad();
    void run(const std::shared_ptr<Load> &load);
    void finishLoad(std::optional<FontCatalogResult> result);
    void serve(PendingResolve &request);

    const Dependencies dependencies;
    const std::shared_ptr<const SystemFont> systemFont;
    FontCatalogLoader loader;
    const WatchedFontRegistrar watchedRegistrar = {};
    mutable std::mutex resolverLock;
    std::shared_ptr<const FaceResolver> faceResolver;
    /// The first one runs. Thread: main.
    std::deque<std::shared_ptr<Load>> loads;
    /// Stops the running pre-warm. Thread: main.
    std::stop_source prewarmTask{std::nostopstate};
    MainThreadQueue mainThread;
    // Last, so that all are stopped before anything they use goes. Nobody waits for a pre-warm.
    WorkerThreads loaderThread{1, "vantrel.lorva.catalog"};
    WorkerThreads prewarmThread{1, "vantrel.lorva.prewarm", WorkerThreads::Priority::low};
    WorkerThreads resolveQueue{kMaxResolveWorkers, "vantrel.lorva.font-resolve"};
};

void FontLibraryService::Private::startLoad()
{
    loaderThread.push([this, load = loads.front()] { run(load); });
}

/// Thread: the loader's.
void FontLibraryService::Private::run(const std::shared_ptr<Load> &load)
{
    // Before anything is shown, the user waits for the scan; later ones must not slow the window.
    if (!currentResolver()->isEmpty())
        lowerThisThreadsPriority();
    ProgressThrottle throttle;
    const auto report = [&](const FontScanPhase &phase) {
        if (!load->progress || !throttle.lets(phase))
            return;
        mainThread.post([load, phase] {
            if (!load->stop.stop_requested())
                load->progress(phase);
        });
    };
    report(FontScanPhase::enumerating(0));
    const std::stop_token stop = load->stop.get_token();
    TraceStage walk("scan: folders");
    const std::vector<FilePath> watched = watchedRegistrar.fontFiles(load->folders, stop);
    walk.end();
    auto result =
        std::make_shared<std::optional<FontCatalogResult>>(loader.scan(watched, report, stop));
    mainThread.post([this, result] { finishLoad(std::move(*result)); });
}

void FontLibraryService::Private::finishLoad(std::optional<FontCatalogResult> result)
{
    const std::shared_ptr<Load> load = loads.front();
    loads.pop_front();
    if (!loads.empty())
        startLoad();
    if (!result || load->stop.stop_requested())
        return;
    // Nothing of the service is touched behind this line: the callback may destroy it.
    if (load->done)
        load->done(*std::move(result));
}

/// Thread: worker.
void FontLibraryService::Private::serve(PendingResolve &request)
{
    if (request.isWanted && !request.isWanted())
        return;
    ResolvedFace face;
    face.font = currentResolver()->resolve(request.familyName, request.style, request.pointSize);
    if (request.prepare)
        face.prepared = request.prepare(face.font);
    if (!request.completion)
        return;
    mainThread.post(
        [completion = std::move(request.completion), face = std::move(face)] { completion(face); });
}

FontLibraryService::FontLibraryService(Dependencies dependencies, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(std::move(dependencies)))
{
}

FontLibraryService::~FontLibraryService() = default;

void FontLibraryService::loadCatalog(std::vector<FilePath> watchedFolders,
                                     ProgressCallback progress, CatalogCallback done)
{
    Q_ASSERT(QThread::currentThread() == thread());
    d->loads.push_back(std::make_shared<Private::Load>(
        Private::Load{std::move(watchedFolders), std::move(progress), std::move(done), {}}));
    if (d->loads.size() == 1)
        d->startLoad();
}

void FontLibraryService::cancelLoad()
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (!d->loads.empty())
        d->loads.front()->stop.request_stop();
}

std::optional<Font> FontLibraryService::cachedFont(const QString &familyName,
                                                   const std::optional<FontStyleRecord> &style,
                                                   double pointSize) const
{
    return d->currentResolver()->cachedFont(familyName, style, pointSize);
}

Font FontLibraryService::resolve(const QString &familyName,
                                 const std::optional<FontStyleRecord> &style,
                                 double pointSize) const
{
    return d->currentResolver()->resolve(familyName, style, pointSize);
}

void FontLibraryService::resolveAsync(PendingResolve request)
{
    d->resolveQueue.push(
        [service = d.get(), request = std::move(request)]() mutable { service->serve(request); });
}

void FontLibraryService::prewarm(std::vector<PrewarmFace> faces, double pointSize)
{
    Q_ASSERT(QThread::currentThread() == thread());
    d->cancelPrewarm();
    d->prewarmTask = std::stop_source();
    d->prewarmThread.push(
        [resolver = d->currentResolver(), faces = std::move(faces), pointSize,
         stop = d->prewarmTask.get_token()] { prewarmFaces(*resolver, faces, pointSize, stop); });
}

PreparedFamilies FontLibraryService::prepareFamilies(FontFamilyList families) const
{
    const TraceStage stage("catalog: index");
    std::shared_ptr<const FaceResolver> resolver = d->makeResolver(std::move(families));
    resolver->prepareFamilies();
    return PreparedFamilies(std::move(resolver));
}

void FontLibraryService::setFamilies(PreparedFamilies families)
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (families.m_resolver)
        d->install(std::move(families.m_resolver));
}

void FontLibraryService::setFamilies(FontFamilyList families)
{
    Q_ASSERT(QThread::currentThread() == thread());
    d->install(d->makeResolver(std::move(families)));
}

std::optional<VariableWeight> FontLibraryService::variableWeight(const QString &familyName,
                                                                 const FontStyleRecord &style) const
{
    return d->currentResolver()->variableWeight(familyName, style);
}

Font FontLibraryService::fontAtWeight(const QString &familyName, const VariableWeight &variable,
                                      double weight, double pointSize) const
{
    return d->currentResolver()->fontAtWeight(familyName, variable, weight, pointSize);
}

QStringList FontLibraryService::familiesSharingFiles(const QStringList &familyNames) const
{
    return d->currentResolver()->familiesSharingFiles(familyNames);
}

} // namespace lorva
