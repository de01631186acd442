// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/JpegScan.h"

namespace lorva {

namespace {

/// Between 0xff and 0xd8 (the beginning) on, and those that restart a scan, stand alone.
bool standsAlone(quint8 marker)
{
    return marker == 0x00 || marker == 0x01 || marker == 0xff || (marker >= 0xd0 && marker <= 0xd9);
}

void note(quint8 marker, JpegScan &scan)
{
    // Frames with progressive Huffman and arithmetic coding, plain and differential.
    if (marker == 0xc2 || marker == 0xc6 || marker == 0xca || marker == 0xce)
        scan.isProgressive = true;
    if (marker == 0xda)
        ++scan.scanCount;
}

} // namespace

JpegScan scanJpeg(const QByteArray &bytes)
{
    JpegScan scan;
    const auto byteAt = [&bytes](qsizetype i) { return quint8(bytes[i]); };
    qsizetype at = 0;
    while (at >= 0 && at + 3 < bytes.size()) {
        const quint8 marker = byteAt(at + 1);
        if (byteAt(at) == 0xff && !standsAlone(marker)) {
            note(marker, scan);
            at += 2 + (byteAt(at + 2) << 8 | byteAt(at + 3));
        } else {
            ++at;
        }
        // Within a scan, on to the next byte that can begin a marker.
        at = bytes.indexOf('\xff', at);
    }
    return scan;
}

} // namespace lorva
