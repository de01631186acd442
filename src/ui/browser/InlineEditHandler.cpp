// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/InlineEditHandler.h"

#include "ui/style/LineField.h"
#include "ui/style/Style.h"

#include <QKeyEvent>

namespace lorva {

namespace {

constexpr int kFieldHeight = spacing::k48;
constexpr int kMostWidth = 720;

/// In the middle of the specimen's room; a field as wide as a list would be hard to read.
QRect fieldRect(const InlineEditHandler::Place &place)
{
    QRect room = place.rect.adjusted(spacing::k20, 0, -spacing::k20, 0);
    QRect field(0, 0, std::min(room.width(), kMostWidth), std::min(room.height(), kFieldHeight));
    field.moveCenter(room.center());
    if (place.alignment & Qt::AlignLeft)
        field.moveLeft(room.left());
    return field;
}

} // namespace

InlineEditHandler::InlineEditHandler(QObject *parent)
    : QObject(parent)
{
}

InlineEditHandler::~InlineEditHandler()
{
    if (m_field)
        m_field->removeEventFilter(this);
    delete m_field;
}

void InlineEditHandler::begin(QWidget *parent, const QString &text, const Place &place)
{
    commit();
    m_field = new LineField(parent);
    m_field->setObjectName(QStringLiteral("inlineEditField"));
    m_field->setAccessibleName(tr("Sample text"));
    m_field->setMaxLength(kMostCharacters);
    m_field->setFont(interfaceFont(InterfaceSize::heading));
    m_field->setText(text);
    m_initialText = m_field->text();
    setPlace(place);
    m_field->installEventFilter(this);
    m_field->window()->installEventFilter(this);
    // The field sets its text from its leading edge whenever that changes.
    connect(m_field, &QLineEdit::textChanged, this, [this] { align(); });
    connect(m_field, &LineField::textSettled, this, [this](const QString &changed) {
        if (onLiveChange)
            onLiveChange(changed);
    });
    m_field->show();
    m_field->selectAll();
    m_field->setFocus(Qt::OtherFocusReason);
}

bool InlineEditHandler::isActive() const
{
    return m_field;
}

void InlineEditHandler::setPlace(const Place &place)
{
    if (!m_field)
        return;
    m_field->setColors(place.foreground, place.background);
    m_field->setGeometry(fieldRect(place));
    m_alignment = (place.alignment & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
    align();
    m_field->raise();
}

void InlineEditHandler::align()
{
    if (m_field)
        m_field->setAlignment(m_alignment);
}

bool InlineEditHandler::eventFilter(QObject *watched, QEvent *event)
{
    // What was typed before the window is closed was meant.
    if (m_field && event->type() == QEvent::Close && watched == m_field->window())
        commit();
    if (watched != m_field)
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // The window has its own use for Escape.
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
            event->accept();
        return false;
    case QEvent::KeyPress:
        return pressKey(static_cast<QKeyEvent *>(event)->key());
    case QEvent::FocusOut: {
        // Another window, or the field's own menu, is not the end of it. At once: the press that
        // takes the focus may choose another source, which has a text of its own.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            commit();
        return false;
    }
    default:
        return false;
    }
}

bool InlineEditHandler::pressKey(int key)
{
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        commit();
    else if (key == Qt::Key_Escape)
        cancel();
    else
        return false;
    return true;
}

void InlineEditHandler::end(bool commits)
{
    if (!m_field)
        return;
    LineField *field = m_field;
    m_field.clear();
    const QString text = field->text();
    field->removeEventFilter(this);
    field->window()->removeEventFilter(this);
    field->disconnect(this);
    if (onEnd)
        onEnd(field->hasFocus());
    field->hide();
    field->deleteLater();
    if (commits && onCommit && text != m_initialText && !text.trimmed().isEmpty())
        onCommit(text);
}

} // namespace lorva
