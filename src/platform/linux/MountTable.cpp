// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/MountTable.h"

#include <QFile>
#include <QList>

#include <algorithm>
#include <array>

namespace lorva {

namespace {

bool isRemoteType(const QByteArray &type)
{
    static constexpr std::array<QByteArrayView, 22> kTypes{
        "9p",     "afs",  "autofs", "ceph",   "cifs",   "coda",    "davfs", "fuse",
        "gfs2",   "gpfs", "lustre", "ncpfs",  "nfs",    "nfs4",    "ocfs2", "orangefs",
        "prl_fs", "smb3", "smbfs",  "vboxsf", "vmhgfs", "virtiofs"};
    return type.startsWith("fuse.") || std::ranges::count(kTypes, QByteArrayView(type)) > 0;
}

/// Spaces and the like stand as a backslash and three octal digits.
QByteArray unescaped(const QByteArray &field)
{
    QByteArray bytes;
    for (qsizetype at = 0; at < field.size(); ++at) {
        bool isNumber = false;
        const uint code = field.at(at) == '\\' ? field.mid(at + 1, 3).toUInt(&isNumber, 8) : 0;
        bytes.append(isNumber ? char(code) : field.at(at));
        at += isNumber ? 3 : 0;
    }
    return bytes;
}

} // namespace

MountTable MountTable::current()
{
    QFile file(QString::fromLatin1(kMountInfoPath));
    return file.open(QIODevice::ReadOnly) ? parse(file.readAll()) : MountTable();
}

MountTable MountTable::parse(const QByteArray &mountInfo)
{
    constexpr qsizetype kPointField = 4;
    MountTable table;
    for (const QByteArray &line : mountInfo.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        // Before the hyphen stands any number of optional fields.
        const qsizetype type = fields.indexOf("-", kPointField) + 1;
        if (type > kPointField && type < fields.size())
            table.m_mounts.push_back(
                {FilePath(unescaped(fields.at(kPointField))), isRemoteType(fields.at(type))});
    }
    return table;
}

bool MountTable::isRemote(const FilePath &path) const
{
    const Mount *nearest = nullptr;
    for (const Mount &mount : m_mounts) {
        // Of two in one place the later lies on top.
        if (path.isInside(mount.point)
            && (!nearest || mount.point.bytes().size() >= nearest->point.bytes().size()))
            nearest = &mount;
    }
    return nearest && nearest->isRemote;
}

} // namespace lorva
