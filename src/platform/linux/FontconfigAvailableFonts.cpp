// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/FontconfigAvailableFonts.h"

#include "platform/linux/FontconfigHandles.h"

#include <QSet>

#include <algorithm>
#include <optional>
#include <utility>

#include <climits>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

/// Often enough for a count that people watch, rare enough to cost nothing.
constexpr int kFilesPerReport = 64;

/// The file that one of our own links leads to; nothing when it has gone.
std::optional<FilePath> targetOfOwnLink(const FilePath &link)
{
    char buffer[PATH_MAX];
    const ssize_t length = ::readlink(link.c_str(), buffer, sizeof buffer);
    if (length < 0)
        return link; // a real file that someone put there
    const QByteArray target(buffer, qsizetype(length));
    const FilePath path = target.startsWith('/') ? FilePath(target) : link.parent().child(target);
    struct stat info;
    if (::stat(path.c_str(), &info) != 0)
        return std::nullopt;
    return path;
}

std::optional<QByteArray> fileOfPattern(FcPattern *pattern)
{
    FcChar8 *file = nullptr;
    if (FcPatternGetString(pattern, FC_FILE, 0, &file) != FcResultMatch || !file)
        return std::nullopt;
    return QByteArray(reinterpret_cast<const char *>(file));
}

/// Collects distinct paths and tells how many there are.
class FileCollector
{
public:
    FileCollector(FilePath registeredLinks, const std::function<void(int)> &found)
        : m_registeredLinks(std::move(registeredLinks))
        , m_found(found)
    {
    }

    void add(FcPattern *pattern)
    {
        const std::optional<QByteArray> file = fileOfPattern(pattern);
        if (!file || m_listed.contains(*file))
            return;
        m_listed.insert(*file);
        const FilePath path(*file);
        const bool isOurs = path.parent() == m_registeredLinks;
        addDistinct(isOurs ? targetOfOwnLink(path) : path);
    }

    std::vector<FilePath> sortedFiles()
    {
        if (m_found && !m_files.isEmpty())
            m_found(int(m_files.size()));
        std::vector<FilePath> sorted(m_files.cbegin(), m_files.cend());
        std::ranges::sort(sorted);
        return sorted;
    }

private:
    void addDistinct(const std::optional<FilePath> &path)
    {
        if (!path || m_files.contains(*path))
            return;
        m_files.insert(*path);
        if (m_found && m_files.size() % kFilesPerReport == 0)
            m_found(int(m_files.size()));
    }

    const FilePath m_registeredLinks;
    const std::function<void(int)> &m_found;
    QSet<QByteArray> m_listed;
    QSet<FilePath> m_files;
};

} // namespace

FontconfigAvailableFonts::FontconfigAvailableFonts(FilePath registeredLinks)
    : m_registeredLinks(std::move(registeredLinks))
{
}

std::vector<FilePath> FontconfigAvailableFonts::fontFiles(const std::function<void(int)> &found,
                                                          std::stop_token stop) const
{
    if (stop.stop_requested())
        return {};
    const FcConfigHandle config(FcInitLoadConfigAndFonts());
    const FcFontSet *const fonts = config ? FcConfigGetFonts(config.get(), FcSetSystem) : nullptr;
    FileCollector collector(m_registeredLinks, found);
    for (int i = 0; fonts && i < fonts->nfont && !stop.stop_requested(); ++i)
        collector.add(fonts->fonts[i]);
    return collector.sortedFiles();
}

} // namespace lorva
