// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHashFunctions>
#include <QString>

#include <functional>

namespace lorva {

/// What the browser lists: all, active or inactive fonts, one grouping by its id, or the Discover
/// page.
///
/// A value that serves as a key. Always true: `id` is empty but for style, collection and foundry.
class BrowserSource
{
public:
    enum class Kind { allFonts, active, inactive, style, collection, foundry, discover };

    /// All fonts.
    BrowserSource() = default;
    static BrowserSource allFonts() { return {}; }
    static BrowserSource active() { return {Kind::active, {}}; }
    static BrowserSource inactive() { return {Kind::inactive, {}}; }
    static BrowserSource style(QString id) { return {Kind::style, std::move(id)}; }
    static BrowserSource collection(QString id) { return {Kind::collection, std::move(id)}; }
    static BrowserSource foundry(QString id) { return {Kind::foundry, std::move(id)}; }
    static BrowserSource discover() { return {Kind::discover, {}}; }
    /// The source of that kind; `id` counts only for those that name a grouping.
    static BrowserSource make(Kind kind, QString id)
    {
        return {kind, namesGrouping(kind) ? std::move(id) : QString()};
    }

    static constexpr bool namesGrouping(Kind kind)
    {
        return kind == Kind::style || kind == Kind::collection || kind == Kind::foundry;
    }

    Kind kind() const { return m_kind; }
    const QString &id() const { return m_id; }

    bool operator==(const BrowserSource &) const = default;
    friend size_t qHash(const BrowserSource &source, size_t seed = 0)
    {
        return qHashMulti(seed, int(source.m_kind), source.m_id);
    }

private:
    BrowserSource(Kind kind, QString id)
        : m_kind(kind)
        , m_id(std::move(id))
    {
    }

    Kind m_kind = Kind::allFonts;
    QString m_id;
};

} // namespace lorva

template <>
struct std::hash<lorva::BrowserSource>
{
    size_t operator()(const lorva::BrowserSource &source) const noexcept { return qHash(source); }
};
