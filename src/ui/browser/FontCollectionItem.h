// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FontCardConfiguration.h"
#include "ui/preview/FontResolver.h"

#include <QWidget>

namespace lorva {

class FontCardContentView;

/// A cell of the browser: one card, used again for the next family when it scrolls away.
/// Thread: main.
class FontCollectionItem final : public QWidget
{
    Q_OBJECT
public:
    FontCollectionItem(std::shared_ptr<FontResolver> resolver, QWidget *parent);

    void configure(const FontCardConfiguration &configuration);
    /// What a pointer resting on the card is told; empty when there is nothing to say.
    QString toolTip() const;
    const QString &familyName() const { return m_familyName; }
    FontCardContentView &contentView() { return *m_content; }
    const FontCardContentView &contentView() const { return *m_content; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    FontCardContentView *m_content;
    QString m_familyName;
};

} // namespace lorva
