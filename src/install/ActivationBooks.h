// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/ActivationProvider.h"
#include "install/FileActivationClass.h"
#include "platform/PlatformFolders.h"

#include <map>
#include <memory>

namespace lorva {

/// What lies directly in the user's Fonts folder, the folder of our links left out. Both sets are
/// empty when it cannot be listed.
struct FontsFolderListing
{
    /// With links resolved.
    QSet<FilePath> files;
    QSet<QByteArray> basenames;

    bool operator==(const FontsFolderListing &) const = default;
};

/// Thread: any; reads the disk.
enum class FontLinks {
    areResolved,
    /// For the main thread: what they lead to may hang.
    areLeftOut
};
FontsFolderListing listFontsFolder(const FilePath &userFonts,
                                   FontLinks links = FontLinks::areResolved);

/// A family's state: by which method it is active (nothing: through the system only), and whether
/// some of its files are not.
struct FamilyActivationState
{
    std::optional<InstallMethod> method;
    bool isPartlyInactive = false;

    bool operator==(const FamilyActivationState &) const = default;
};

/// What activation goes by, as it was at one moment: the books, the Fonts folder, the files of
/// watched folders. Says what each file and family is by them.
///
/// Immutable, but for a memo of what was classified; reads the disk for resolving links only.
/// Thread: any, several at once.
class ActivationBooks final : public ActivationState
{
public:
    struct Contents
    {
        PlatformFolders folders;
        FontsFolderListing fontsFolder;
        /// Where the user's folders are; their files count as watched until watchedFontURLs says
        /// which are.
        std::vector<FilePath> watchedFolders;
        std::optional<QSet<FilePath>> watchedFontURLs;
        QSet<FilePath> registeredURLs;
        std::map<QString, InstallMethod> methods;
        /// Where copies came from, by the copy's path.
        QHash<FilePath, FilePath> origins;
    };

    explicit ActivationBooks(Contents contents);
    ~ActivationBooks() override;

    const Contents &contents() const;

    FileActivationClass classify(const FilePath &file) const;
    /// Nothing: not active.
    std::optional<FamilyActivationState> activationState(const FontFamilyRecord &family) const;
    /// Nothing for a family without any file; else activationState() in two values.
    std::optional<FontFamilyActivation> activation(const FontFamilyRecord &family) const override;

    std::optional<FontFamilyActivation> knownActivation(
        const FontFamilyRecord &family) const override;

    /// The entry of a Fonts folder that de-activating a `copied` file removes: the file itself, as
    /// an entry of that folder and not what it links to, if it lies in one; else its namesake in
    /// the user's Fonts folder, if that was copied from this file or holds the same bytes. Fails
    /// with invalidValue when the namesake is another font. Reads both files' bytes if it must; so
    /// never on the main thread.
    Result<FilePath> fontsFolderEntry(const FilePath &copiedFile) const;

    /// The entry of a Fonts folder is a copy of a file that still lies where it was copied from:
    /// the books name it, and it holds the same bytes. So throwing the entry away loses nothing.
    /// Reads both files.
    bool isOriginKnown(const FilePath &entry) const;

    /// Every entry of a Fonts folder that de-activating these styles would remove has a known
    /// origin. True when there is none. Reads as fontsFolderEntry().
    bool areAllOriginsKnown(const std::vector<FontStyleRecord> &styles) const;

    /// Looks anew at where files lie when they are asked for next: links may lead elsewhere.
    void forgetClassified() const;

    /// The files of `styles`, each once, in their order.
    static std::vector<FilePath> filesOf(const std::vector<FontStyleRecord> &styles);
    /// Those of all their styles, likewise; copies none of the records.
    static std::vector<FilePath> filesOf(const std::vector<FontFamilyRecord> &families);

private:
    struct Private;

    const std::unique_ptr<Private> d;
};

} // namespace lorva
