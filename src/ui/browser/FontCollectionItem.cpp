// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/FontCollectionItem.h"

#include "ui/browser/FontCardContentView.h"

namespace lorva {

FontCollectionItem::FontCollectionItem(std::shared_ptr<FontResolver> resolver, QWidget *parent)
    : QWidget(parent)
    , m_content(new FontCardContentView(std::move(resolver), this))
{
    setObjectName(QStringLiteral("FontCollectionItem"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void FontCollectionItem::configure(const FontCardConfiguration &configuration)
{
    m_familyName = configuration.family.familyName;
    setAccessibleName(m_familyName);
    m_content->configure(configuration);
}

QString FontCollectionItem::toolTip() const
{
    const QString note = m_content->previewView().toolTip();
    if (!m_content->isTitleElided())
        return note;
    return note.isEmpty() ? m_familyName : QString(m_familyName + u'\n' + note);
}

void FontCollectionItem::resizeEvent(QResizeEvent *)
{
    m_content->setGeometry(rect());
}

} // namespace lorva
