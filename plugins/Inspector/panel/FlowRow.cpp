// SPDX-License-Identifier: MIT
#include "panel/FlowRow.h"

#include <scopix/editing/SpxFlowLayout.h>

#include <QToolButton>

#include <algorithm>

namespace inspector
{

FlowRow::FlowRow(QWidget* parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    auto* flow = new SpxFlowLayout(this);
    flow->setContentsMargins({});
    hide();
}

// The button that was clicked may be among them.
void FlowRow::clear()
{
    for (QToolButton* button : qAsConst(m_buttons)) {
        layout()->removeWidget(button);
        button->hide();
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
    button->setMinimumWidth(1); // rather cut than wider than the panel
    m_buttons += button;
    layout()->addWidget(button);
    button->show();
    show();
    return button;
}

// However long it is in one line, the panel gets no wider.
QSize FlowRow::sizeHint() const
{
    return {width(), heightForWidth(std::max(1, width()))};
}

QSize FlowRow::minimumSizeHint() const
{
    return {1, heightForWidth(std::max(1, width()))};
}

} // namespace inspector
