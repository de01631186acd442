// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/inspector/InspectorStates.h"

#include <QWidget>

#include <functional>

namespace lorva {

class InfoRowView;
class InspectorLabel;

/// The info tab: sections of facts, one below the other. Thread: main.
class InspectorInfoView final : public QWidget
{
    Q_OBJECT
public:
    explicit InspectorInfoView(QWidget *parent);

    /// Equal sections change nothing, and what was opened stays open.
    void setSections(const std::vector<InfoSection> &sections);
    std::function<void(const QUrl &)> onLink;
    std::function<void()> onFile;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Part
    {
        InspectorLabel *title;
        std::vector<InfoRowView *> rows;
    };

    Part makePart(const InfoSection &section);
    void placeParts();

    std::vector<InfoSection> m_sections;
    std::vector<Part> m_parts;
};

} // namespace lorva
