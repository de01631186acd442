// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilySubset.h"
#include "ui/preview/FontResolver.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace lorva {

/// The style of a family that is shown beside another family's `like`: as slanted as it, if one of
/// them is, and then of the nearest weight. Nothing for a family without styles. Thread: any.
std::optional<FontStyleRecord> nearestStyle(const FontFamilyRecord &family,
                                            const FontStyleRecord &like);

/// The families that are compared with, each with the font of the style nearest to what it is
/// compared with.
///
/// Fonts that are at hand come at once, the others when the resolver delivers them; what arrives
/// after its family or style is no longer asked for is dropped. Thread: main.
class ComparisonFaces
{
public:
    struct Request;
    struct Face
    {
        FontFamilyRecord family;
        std::optional<FontStyleRecord> style;
        /// Null while it is on its way; a stand-in where the family has gone.
        Font font;
        /// Null when none is on its way.
        std::shared_ptr<Request> request;
    };

    explicit ComparisonFaces(std::shared_ptr<FontResolver> resolver, size_t most);
    ~ComparisonFaces();

    /// A font has come.
    std::function<void()> onDelivery;

    /// What can be compared with. Those that are compared and no longer there go, unless there are
    /// no families at all, as before the first scan. True when something changed.
    bool setFamilies(const FontFamilySubset &families);
    const FontFamilySubset &families() const { return m_families; }
    void setStyle(const FontStyleRecord &style);
    /// Fonts are asked for at this size; those that are there already stay.
    void setPointSize(double pointSize) { m_pointSize = pointSize; }
    /// In this order; names twice, unknown ones and those too many are passed over.
    void setNames(const QStringList &names);
    QStringList names() const { return m_names; }
    /// Those of names() that are there.
    const std::vector<Face> &faces() const { return m_faces; }
    bool isSettled() const;

private:
    const FontFamilyRecord *family(const QString &name) const;
    void update(bool resolvesAnew);
    void resolve(Face &face);
    void deliver(const Request &request, const Font &font);

    const std::shared_ptr<FontResolver> m_resolver;
    const size_t m_most;
    FontFamilySubset m_families;
    std::optional<FontStyleRecord> m_style;
    double m_pointSize = 48;
    QStringList m_names;
    std::vector<Face> m_faces;
};

} // namespace lorva
