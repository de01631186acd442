// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "model/records/Activation.h"
#include "model/records/FontFamilyList.h"

#include <QByteArray>
#include <QSet>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace lorva {

class FontInstallationService;

/// What is switched on, as it was at one moment. Immutable. Thread: any.
class ActivationState
{
public:
    virtual ~ActivationState() = default;
    /// Nothing for a family that the user cannot switch: one without any file.
    virtual std::optional<FontFamilyActivation> activation(
        const FontFamilyRecord &family) const = 0;
    /// The same, if that has been found out before; nothing if the disk would have to be looked at.
    virtual std::optional<FontFamilyActivation> knownActivation(
        const FontFamilyRecord &family) const
    {
        return activation(family);
    }
};

/// Knows which families are switched on for the whole system. Thread: main.
class ActivationProvider
{
public:
    virtual ~ActivationProvider() = default;

    /// Posted on the notification centre after fonts were switched on or off.
    static QByteArray changeNotification()
    {
        return QByteArrayLiteral("vantrel.merid.lorvaFontActivationDidChange");
    }

    /// As it is now. Cheap. Never null.
    virtual std::shared_ptr<const ActivationState> state() const = 0;
    /// What lies in these counts as watched until a scan has said what does.
    virtual void setWatchedFolders(std::vector<FilePath> folders) = 0;
    /// The font files that came from watched folders; replaced whole after each scan.
    virtual void setWatchedFontURLs(QSet<FilePath> urls) = 0;
    /// Looks anew at what is there of these families, and calls `done` when state() says it; at
    /// once, or later on the main thread. Not calling it is allowed only while being destroyed.
    virtual void reconcile(const FontFamilyList &families, std::function<void()> done) = 0;
    /// What switches fonts on and off; null where nothing does.
    virtual FontInstallationService *installationService() { return nullptr; }
    /// Other processes may have changed the books.
    virtual void takeChangesElsewhere() { }
};

} // namespace lorva
