// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/BrowserSource.h"
#include "model/records/DisplayRecords.h"

#include <functional>
#include <map>
#include <vector>

namespace lorva {

class DisplaySettingsStore;

/// How specimens look: every value there is, none absent that the program needs.
struct DisplayValues
{
    ColorMode colorMode = ColorMode::white;
    QString customForegroundColorHex = QStringLiteral("#FFFFFF");
    QString customBackgroundColorHex = QStringLiteral("#F04000");
    /// Empty: no logo.
    QByteArray logoImageData;
    /// Logo height as a multiple of the cap height.
    double logoSizeRatio = 1.0;
    /// Gap after the logo as a multiple of the point size.
    double logoSpacing = 0.15;
    bool logoVisible = true;
    double browserPointSize = 36;
    double browserFontWeight = 400;
    QString sampleText = QStringLiteral("Aa 123");
    std::optional<QString> backgroundImageID;
    std::optional<QString> backgroundImageUserFilename;
    QString imageForegroundColorHex = QStringLiteral("#FFFFFF");

    bool operator==(const DisplayValues &) const = default;
};

/// "#" and six hexadecimal digits, in upper case; nothing for any other text.
std::optional<QString> colorHex(const QString &text);

/// The display values of the present source: its own settings, else those that all sources share,
/// else the defaults.
///
/// A collection has settings of its own, everything else shares one record. A change is written
/// through, and only what was changed, so that the rest goes on following the shared settings.
/// Stored values that make no sense (a size of -3, a colour "red") count as absent. Holds a
/// reference to the store, which outlives it. Thread: main.
class SourceDisplay
{
public:
    static constexpr double kMinimumPointSize = 12;
    static constexpr double kMaximumPointSize = 160;
    static constexpr double kMinimumWeight = 100;
    static constexpr double kMaximumWeight = 900;

    /// A size or gap of thousands is damage, and would take the window with it.
    static bool isLogoSizeRatio(double ratio) { return ratio >= 0.01 && ratio <= 20; }
    static bool isLogoSpacing(double spacing) { return spacing >= 0 && spacing <= 20; }

    SourceDisplay(DisplaySettingsStore &store, const BrowserSource &source);

    const DisplayValues &values() const { return m_values; }
    /// True when the values are others than before.
    bool select(const BrowserSource &source);
    /// Reads the store anew, likewise.
    bool reload();
    /// Values that win over stored ones and are not stored, until the user changes them.
    void setForThisRun(const SourceDisplaySettings &settings);

    /// Changes the source's own settings, here and in the store. An empty text means none where
    /// there can be none. `change` may run again later, so it owns what it captures.
    void update(std::function<void(SourceDisplaySettings &)> change);
    /// While held, changes are kept here; letting go writes them.
    void setHeld(bool isHeld);
    /// Drops the source's own settings, and what the program was started with.
    void reset();

private:
    using Change = std::function<void(SourceDisplaySettings &)>;
    void writeHeldChanges();
    bool resolve();

    DisplaySettingsStore &m_store;
    QString m_key;
    /// As last read or written: with logos in it, reading takes its time.
    std::map<QString, SourceDisplaySettings> m_stored;
    bool m_isHeld = false;
    /// Made while held, on the settings of m_key.
    std::vector<Change> m_heldChanges;
    SourceDisplaySettings m_forThisRun;
    /// What the user has set since, by source key: there m_forThisRun does not count any more.
    std::map<QString, SourceDisplaySettings> m_changedInThisRun;
    DisplayValues m_values;
};

} // namespace lorva
