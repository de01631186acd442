// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Specimen.h"

#include "base/AtomicFile.h"
#include "cli/OutputFile.h"
#include "cli/SpecimenFont.h"
#include "cli/SpecimenPage.h"

namespace lorva::cli {

namespace {

using Encoder = Result<QByteArray> (*)(const SpecimenPage &);

Result<Encoder> encoderFor(const FilePath &picture)
{
    const QByteArray name = picture.fileName().toLower();
    if (name.endsWith(".png"))
        return &pngPicture;
    if (name.endsWith(".svg"))
        return &svgPicture;
    if (name.endsWith(".pdf"))
        return &pdfPicture;
    return failure(ErrorKind::invalidValue,
                   QStringLiteral("%1: the name of a picture ends in .png, .svg or .pdf")
                       .arg(picture.displayText()));
}

} // namespace

Result<std::vector<QString>> writeSpecimen(const SpecimenRequest &request)
{
    if (Result<void> checked = refuseFontFile(request.picture); !checked)
        return tl::unexpected(checked.error());
    const Result<Encoder> encode = encoderFor(request.picture);
    if (!encode)
        return tl::unexpected(encode.error());
    std::vector<QString> notes;
    const Result<Font> font = specimenFont(request, notes);
    if (!font)
        return tl::unexpected(font.error());
    const SpecimenPage page = layOutSpecimen(request, *font);
    if (page.size.height() > kMaxSpecimenSide)
        return failure(
            ErrorKind::tooLarge,
            QStringLiteral("the text needs %1 pixels of height; give a --height up to %2")
                .arg(QString::number(page.size.height()), QString::number(kMaxSpecimenSide)));
    if (page.isCropped)
        notes.push_back(QStringLiteral("the picture is too small for all of the text"));
    const Result<QByteArray> bytes = (*encode)(page);
    if (!bytes)
        return tl::unexpected(bytes.error());
    if (const Result<void> written = writeFileAtomically(request.picture, *bytes); !written)
        return tl::unexpected(written.error());
    return notes;
}

} // namespace lorva::cli
