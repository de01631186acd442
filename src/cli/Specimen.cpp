// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Specimen.h"

#include "base/AtomicFile.h"
#include "cli/OutputFile.h"
#include "cli/SpecimenFont.h"
#include "cli/SpecimenPage.h"
#include "cli/Texts.h"

namespace lorva::cli {

Result<std::vector<QString>> writeSpecimen(const SpecimenRequest &request)
{
    if (Result<void> checked = refuseFontFile(request.picture); !checked)
        return tl::unexpected(checked.error());
    const Result<PictureFormat> format = pictureFormat(request.picture);
    if (!format)
        return tl::unexpected(format.error());
    std::vector<QString> notes;
    const Result<Font> font = specimenFont(request, notes);
    if (!font)
        return tl::unexpected(font.error());
    const SpecimenPage page = layOutSpecimen(request, *font);
    if (page.size.height() > kMaxSpecimenSide)
        return failure(
            ErrorKind::tooLarge,
            Texts::tr("the text needs %1 pixels of height; give a --height up to %2")
                .arg(QString::number(page.size.height()), QString::number(kMaxSpecimenSide)));
    if (page.isCropped)
        notes.push_back(Texts::tr("the picture is too small for all of the text"));
    const Result<QByteArray> bytes = encodedSpecimen(page, *format);
    if (!bytes)
        return tl::unexpected(bytes.error());
    if (const Result<void> written = writeFileAtomically(request.picture, *bytes); !written)
        return tl::unexpected(written.error());
    return notes;
}

} // namespace lorva::cli
