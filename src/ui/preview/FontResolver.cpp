// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/preview/FontResolver.h"

#include <QPointer>

namespace lorva {

namespace {

class ServiceFontResolver final : public FontResolver
{
public:
    explicit ServiceFontResolver(FontLibraryService &service)
        : m_service(&service)
    {
    }

    std::optional<Font> cachedFont(const QString &familyName,
                                   const std::optional<FontStyleRecord> &style,
                                   double pointSize) const override
    {
        return m_service ? m_service->cachedFont(familyName, style, pointSize) : std::nullopt;
    }

    Font resolve(const QString &familyName, const std::optional<FontStyleRecord> &style,
                 double pointSize) const override
    {
        return m_service ? m_service->resolve(familyName, style, pointSize) : Font();
    }

    void resolveAsync(PendingResolve request) override
    {
        if (m_service)
            m_service->resolveAsync(std::move(request));
    }

    void prewarm(std::vector<PrewarmFace> faces, double pointSize) override
    {
        if (m_service)
            m_service->prewarm(std::move(faces), pointSize);
    }

private:
    QPointer<FontLibraryService> m_service;
};

} // namespace

std::shared_ptr<FontResolver> makeFontResolver(FontLibraryService &service)
{
    return std::make_shared<ServiceFontResolver>(service);
}

} // namespace lorva
