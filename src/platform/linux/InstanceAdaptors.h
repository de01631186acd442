// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SingleInstance.h"

#include <QByteArrayList>
#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariantMap>

namespace lorva {

// What the running process answers on the bus. The names and the types of the methods are those of
// the interfaces. Thread: main.

/// Desktop Entry Specification, "D-Bus Activation".
class FreedesktopApplicationAdaptor final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    FreedesktopApplicationAdaptor(SingleInstance &instance, QObject *object);

    // NOLINTBEGIN(readability-identifier-naming): D-Bus writes methods with a capital.
public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): moc tells slots apart
    void Activate(const QVariantMap &platformData);
    /// Files and folders; what is elsewhere is handed on as the address that it is.
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameters,
                        const QVariantMap &platformData);
    // NOLINTEND(readability-identifier-naming)

private:
    SingleInstance &m_instance;
};

class InstanceAdaptor final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "vantrel.lorva.Instance")
public:
    InstanceAdaptor(SingleInstance &instance, QObject *object);

    // NOLINTBEGIN(readability-identifier-naming)
public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): as above
    /// Returns when the start has been taken over.
    void Start(const QByteArrayList &arguments, const QByteArray &workingFolder,
               const QByteArray &activationToken);
    // NOLINTEND(readability-identifier-naming)

private:
    SingleInstance &m_instance;
};

} // namespace lorva
