// SPDX-License-Identifier: MIT
#include "panel/FlowRow.h"

#include <QResizeEvent>
#include <QToolButton>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int Space = 2;

} // namespace

FlowRow::FlowRow(QWidget* parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    hide();
}

// The button that was clicked may be among them.
void FlowRow::clear()
{
    for (QToolButton* button : qAsConst(m_buttons)) {
        button->hide();
        button->setParent(nullptr);
        button->deleteLater();
    }
    m_buttons.clear();
    hide();
}

QToolButton* FlowRow::add(const QString& text, const QString& toolTip, std::function<void()> act)
{
    auto* button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip.isEmpty() ? text : toolTip);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, [act = std::move(act)] { act(); });
    m_buttons += button;
    button->show();
    show();
    updateGeometry();
    place(width(), true);
    return button;
}

QSize FlowRow::sizeHint() const
{
    return {width(), place(std::max(1, width()), false)};
}

QSize FlowRow::minimumSizeHint() const
{
    return {1, place(std::max(1, width()), false)};
}

void FlowRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place(width(), true);
    if (event->oldSize().width() != width())
        updateGeometry();
}

int FlowRow::place(int width, bool moves) const
{
    int x = 0;
    int y = 0;
    int lineHeight = 0;
    for (QToolButton* button : m_buttons) {
        const QSize size = button->sizeHint().boundedTo({std::max(1, width), QWIDGETSIZE_MAX});
        if (x > 0 && x + size.width() > width) {
            x = 0;
            y += lineHeight + Space;
            lineHeight = 0;
        }
        if (moves)
            button->setGeometry(x, y, size.width(), size.height());
        x += size.width() + Space;
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight;
}

} // namespace inspector
