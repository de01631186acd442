// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <memory>
#include <span>
#include <vector>

namespace lorva {

class FontFace;
class OpenedFile;
struct SfntDirectory;

/// Names one descriptor of a font file.
struct FaceKey
{
    /// Position in a collection; 0 for a file of one face.
    int faceIndex = 0;
    /// Position among the named instances of a variable face; −1 for its default instance.
    int namedInstance = -1;

    bool operator==(const FaceKey &) const = default;
};

/// Normalised traits of a face.
struct FaceTraits
{
    /// −1 … 1, from the OS/2 weight class or the instance's `wght`; see weightTraitFromClass().
    double weight = 0;
    /// −1 … 1, positive leans to the right.
    double slant = 0;
    /// The italic bit: fsSelection italic or oblique, or macStyle italic.
    bool isItalic = false;

    bool operator==(const FaceTraits &) const = default;
};

/// What a catalog needs to know of one face, read without shaping or outlines.
struct FaceDescriptor
{
    FaceKey key;
    QString familyName;
    QString styleName;
    QString postScriptName;
    FaceTraits traits;
    QString manufacturer;

    bool operator==(const FaceDescriptor &) const = default;
};

/// Whom a face is made for: what it can write, and what it is called where.
struct FaceReach
{
    /// Whether each character asked for has a glyph, in the order asked.
    std::vector<bool> isMapped;
    /// See FontFace::familyNamesInAllLanguages().
    std::vector<QString> familyNames;
};

/// An opened font file and its faces.
///
/// Immutable and shared between threads. Holds no file descriptor between calls, so that thousands
/// of files can be known at once; each read opens the file again and refuses a file that has
/// changed since. Thread: any. Hostile files: every count, size and offset is bounded by the
/// constants of text/FontLimits.h; a damaged face is left out, the others stay.
class FontFile
{
public:
    /// Opens a regular file without blocking. Fails with notFound, permissionDenied,
    /// notRegularFile, tooLarge, truncated (shorter than its header says), unsupported (no sfnt,
    /// for example Type 1) or malformed.
    static Result<std::shared_ptr<const FontFile>> open(const FilePath &path);

    /// A file together with the opening that it was read through. While `opening` lives, everything
    /// that the file and its faces read shares one file descriptor.
    struct KeptOpen
    {
        std::shared_ptr<const FontFile> file;
        std::shared_ptr<const OpenedFile> opening;
    };
    /// As open(), for work that is done in one go, such as a scan: descriptors, then a few glyphs.
    /// Keep the opening for the work on this one file and no longer.
    static Result<KeptOpen> openForReading(const FilePath &path);
    /// The same through an opening of the file that was made before.
    static Result<KeptOpen> read(const FilePath &path, std::shared_ptr<const OpenedFile> opening);
    ~FontFile();

    const FilePath &path() const;
    /// Faces in the collection header, sound or not, at most kMaxFacesPerFile.
    int faceCount() const;

    /// One descriptor per face of a collection; of a variable face, one per named instance plus the
    /// default instance if no named one equals it (the default first). Faces with neither a
    /// readable name nor a character map are left out. Fails only when the file as a whole cannot
    /// be read.
    Result<std::vector<FaceDescriptor>> descriptors() const;

    /// The face behind a descriptor, ready for names, metrics, shaping and outlines. Fails with
    /// notFound for an index that the file does not have, else as open().
    Result<std::shared_ptr<const FontFace>> face(FaceKey key) const;

    /// What a catalog asks of one face of each family, without the cost of a face that can draw and
    /// without a place among those kept warm. A damaged character map or naming table counts as
    /// empty. Fails as face(), but takes no notice of the named instance.
    Result<FaceReach> reach(FaceKey key, std::span<const char32_t> characters) const;

    struct Data;

private:
    Result<SfntDirectory> directoryOf(const OpenedFile &opened, FaceKey key) const;
    explicit FontFile(std::shared_ptr<const Data> data);
    std::shared_ptr<const Data> m_data;
};

/// Weight trait of an OS/2 usWeightClass (OpenType `OS/2`): piecewise linear through 100 −0.8, 200
/// −0.6, 300 −0.4, 400 0, 500 0.23, 600 0.3, 700 0.4, 800 0.56, 900 0.8. Classes 1 to 9 are the old
/// scale (times 100); the rest is clamped to 1…1000.
double weightTraitFromClass(double weightClass);

} // namespace lorva
