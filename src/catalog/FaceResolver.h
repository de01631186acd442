// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/BoundedCache.h"
#include "catalog/FaceIndex.h"
#include "catalog/VariableWeight.h"
#include "platform/AvailableFonts.h"
#include "text/Font.h"
#include "text/FontFile.h"

#include <QHashFunctions>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <variant>

namespace lorva {

using SteadyTime = std::chrono::steady_clock::time_point;
/// What the time is; a test's own clock.
using SteadyClock = std::function<SteadyTime()>;

/// How a face was found last time.
struct FaceResolution
{
    /// By its PostScript name, in whatever file of the catalog holds it.
    struct Name
    {
        QString postScriptName;
    };
    /// In this file.
    struct File
    {
        FilePath path;
        QString postScriptName;
        /// Its label, which alone names a face without a PostScript name.
        QString label;
        FaceKey key;
    };
    struct Unresolved
    {
        SteadyTime since;
    };

    std::variant<Name, File, Unresolved> path;
    /// The face, while some font of it is still in use: other sizes then need no reading at all.
    std::weak_ptr<const FontFace> face = {};
};

/// Gives the system font, opened at first use. Thread: any.
class SystemFont
{
public:
    explicit SystemFont(std::shared_ptr<const SystemFontLocator> locator);
    /// Marked as a stand-in; a null font on a system without any.
    Font at(double pointSize) const;

private:
    const std::shared_ptr<const SystemFontLocator> m_locator;
    mutable std::once_flag m_opened;
    mutable std::shared_ptr<const FontFace> m_face;
};

/// Turns family, style and size into a font, over the faces of one catalog.
///
/// A style resolves to its own file when that file holds it, so that a specimen never shows another
/// file's face under a shared name; then to whatever file of the catalog holds its PostScript name;
/// then to the style of its family with the same slant and weight.
///
/// Owns: the caches; they end with the catalog they were filled from. Thread: any.
/// Failure: the system font, marked as a stand-in; the face is then not looked for again for
/// kRetryAfter.
class FaceResolver
{
public:
    static constexpr size_t kResolvedFonts = 2048;
    /// More would cost 80 MB after a look through a large library, and save nothing that a scroll
    /// shows: a file is described again in a tenth of a millisecond.
    static constexpr size_t kFileDescriptors = 1024;
    static constexpr size_t kFaceResolutions = 65536;
    static constexpr std::chrono::seconds kRetryAfter{10};

    FaceResolver(FontFamilyList families, std::shared_ptr<const SystemFont> systemFont,
                 SteadyClock now);

    /// Makes the index now, so that no look-up has to.
    void prepareFamilies() const { m_index.prepareFamilies(); }
    void prepareLookUps() const { m_index.prepareLookUps(); }
    bool isEmpty() const { return m_index.isEmpty(); }
    std::optional<Font> cachedFont(const QString &familyName,
                                   const std::optional<FontStyleRecord> &style,
                                   double pointSize) const;
    Font resolve(const QString &familyName, const std::optional<FontStyleRecord> &style,
                 double pointSize) const;

    /// Nothing for a face without a usable weight axis, or that cannot be found.
    std::optional<VariableWeight> variableWeight(const QString &familyName,
                                                 const FontStyleRecord &style) const;
    /// The style at `weight`, kept within its axis. A stand-in stays as it is.
    Font fontAtWeight(const QString &familyName, const VariableWeight &variable, double weight,
                      double pointSize) const;
    /// See FaceIndex.
    QStringList familiesSharingFiles(const QStringList &familyNames) const
    {
        return m_index.familiesSharingFiles(familyNames);
    }

private:
    using Face = std::shared_ptr<const FontFace>;
    struct DescribedFile
    {
        std::shared_ptr<const FontFile> file;
        std::vector<FaceDescriptor> descriptors;
    };
    /// What names a face; an empty id stands for the family's default face.
    struct FaceName
    {
        QString familyName;
        QString styleId;
        FilePath path;
        bool operator==(const FaceName &) const = default;
    };
    struct FontName
    {
        FaceName face;
        double pointSize = 0;
        /// On the weight axis; absent: where the face itself stands.
        std::optional<double> weight = {};
        bool operator==(const FontName &) const = default;
    };
    struct Hash
    {
        size_t operator()(const FaceName &name) const
        {
            return qHashMulti(0, name.familyName, name.styleId, name.path.bytes());
        }
        size_t operator()(const FontName &name) const
        {
            return qHashMulti(0, (*this)(name.face), name.pointSize, name.weight.value_or(0));
        }
    };
    struct Found
    {
        Face face;
        FaceResolution resolution;
    };

    static FaceName nameOf(const QString &familyName, const std::optional<FontStyleRecord> &style);
    const FontStyleRecord *wantedStyle(const QString &familyName,
                                       const std::optional<FontStyleRecord> &style) const;
    bool isResting(const FaceResolution &resolution) const;
    Face follow(const FaceResolution &resolution) const;
    Found search(const QString &familyName, const FontStyleRecord &style) const;
    Found searchNamed(const QString &postScriptName) const;
    Found faceInFile(const QString &familyName, const FontStyleRecord &style) const;
    std::shared_ptr<const DescribedFile> cachedFile(const FilePath &path,
                                                    const QString &face) const;
    std::shared_ptr<const DescribedFile> readFile(const FilePath &path) const;
    static Found faceOf(const DescribedFile &described, const QString &familyName,
                        const FontStyleRecord &style);

    const FaceIndex m_index;
    const std::shared_ptr<const SystemFont> m_systemFont;
    const SteadyClock m_now;
    mutable BoundedCache<FontName, Font, Hash> m_resolvedFontCache{kResolvedFonts};
    /// By file and face, so that its limit counts faces: collections of hundreds of instances
    /// exist.
    mutable BoundedCache<QByteArray, std::shared_ptr<const DescribedFile>> m_fileDescriptorCache{
        kFileDescriptors};
    mutable BoundedCache<FaceName, FaceResolution, Hash> m_faceResolutionCache{kFaceResolutions};
};

} // namespace lorva
