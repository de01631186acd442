// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/Prewarming.h"

#include "catalog/FaceResolver.h"
#include "catalog/FileFingerprint.h"

#include <QSet>

namespace lorva {

namespace {

/// Counts the files of a pre-warm, each once: the faces of a collection share their large tables.
class FileBudget
{
public:
    bool lets(const FilePath &path)
    {
        if (m_files.contains(path))
            return true;
        const std::optional<FileFingerprint> file = fingerprintOf(path);
        if (!file || file->fileSize > kPrewarmFileBytes - m_used)
            return false;
        m_used += file->fileSize;
        m_files.insert(path);
        return true;
    }

private:
    QSet<FilePath> m_files;
    qint64 m_used = 0;
};

} // namespace

void prewarmFaces(const FaceResolver &resolver, const std::vector<PrewarmFace> &faces,
                  double pointSize, const std::stop_token &stop)
{
    QSet<QString> families;
    FileBudget budget;
    for (const PrewarmFace &each : faces) {
        if (stop.stop_requested() || size_t(families.size()) == kPrewarmFamilies)
            return;
        if (families.contains(each.familyName))
            continue;
        families.insert(each.familyName);
        const Font font = resolver.resolve(each.familyName, each.style, pointSize);
        if (font.isNull() || font.isStandIn() || !budget.lets(font.face()->path()))
            continue;
        // Between the two, because a CJK face takes a while to read.
        const std::shared_ptr<hb_font_t> tables = font.shapingFont();
        if (each.prepare && !stop.stop_requested())
            each.prepare(font);
    }
}

} // namespace lorva
