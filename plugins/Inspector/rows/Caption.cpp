// SPDX-License-Identifier: MIT
#include "rows/Caption.h"

#include "rows/NumberEdit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace inspector
{

Caption::Caption(const QString& text, QWidget* parent)
    : QWidget(parent)
    , m_text(text)
{
    setObjectName(QStringLiteral("caption"));
}

void Caption::setDragged(NumberEdit* number)
{
    m_number = number;
    if (number)
        setCursor(Qt::SizeHorCursor);
}

void Caption::setStrong(bool strong)
{
    QFont font = parentWidget()->font();
    font.setBold(strong);
    setFont(font);
}

void Caption::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(m_text, Qt::ElideRight, width()));
}

void Caption::mousePressEvent(QMouseEvent* event)
{
    m_isPressed = event->button() == Qt::LeftButton;
    m_pressedAt = event->pos();
    if (!m_isPressed)
        event->ignore();
}

void Caption::mouseMoveEvent(QMouseEvent* event)
{
    const int pixels = event->pos().x() - m_pressedAt.x();
    if (m_drags && m_number) {
        m_number->dragTo(pixels, event->modifiers());
    } else if (m_isPressed && m_number && std::abs(pixels) >= QApplication::startDragDistance()) {
        m_drags = true;
        m_pressedAt = event->pos();
        m_number->finish();
        grabKeyboard();
        m_number->beginDrag();
    }
}

void Caption::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    const bool isClick = m_isPressed && !m_drags;
    end(true);
    if (isClick)
        emit clicked();
}

void Caption::keyPressEvent(QKeyEvent* event)
{
    if (m_drags && event->key() == Qt::Key_Escape)
        end(false);
    else
        event->ignore();
}

void Caption::hideEvent(QHideEvent* event)
{
    end(true);
    QWidget::hideEvent(event);
}

void Caption::end(bool keep)
{
    if (m_drags) {
        releaseKeyboard();
        if (m_number)
            m_number->endDrag(keep);
    }
    m_drags = false;
    m_isPressed = false;
}

} // namespace inspector
