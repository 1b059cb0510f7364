// SPDX-License-Identifier: MIT
#include "theme/WindowTheme.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

namespace scopix
{

namespace
{

QStyle* fusionUnlessApplicationHasIt()
{
    QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"));
    if (fusion->metaObject() != QApplication::style()->metaObject())
        return fusion;
    delete fusion;
    return nullptr;
}

} // namespace

WindowTheme::WindowTheme(QWidget& window)
    : QObject(&window)
    , m_window(window)
    , m_style(fusionUnlessApplicationHasIt())
{
    // Off the screen there is no desktop that would say how large text is.
    if (QApplication::platformName() == QLatin1String("offscreen"))
        m_window.setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    m_systemFont = m_window.font();
    if (m_style)
        m_style->setParent(this);
    qApp->installEventFilter(this);
}

void WindowTheme::apply(Theme theme)
{
    dressAll(m_window);
    m_window.setPalette(themePalette(theme));
}

void WindowTheme::setFontSize(int points)
{
    QFont font = m_systemFont;
    if (points > 0)
        font.setPointSize(points);
    m_window.setFont(font);
}

bool WindowTheme::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    auto& widget = static_cast<QWidget&>(*watched);
    if (event->type() == QEvent::Polish && belongsToWindow(widget))
        dress(widget);
    else if (event->type() == QEvent::ParentChange && belongsToWindow(widget))
        dressAll(widget);
    return false;
}

bool WindowTheme::belongsToWindow(const QWidget& widget) const
{
    const QWidget* at = &widget;
    while (at && at != &m_window)
        at = at->parentWidget();
    return at != nullptr;
}

void WindowTheme::dressAll(QWidget& top)
{
    dress(top);
    for (QWidget* widget : top.findChildren<QWidget*>())
        dress(*widget);
}

void WindowTheme::dress(QWidget& widget)
{
    if (m_style && !widget.testAttribute(Qt::WA_SetStyle))
        widget.setStyle(m_style);
    // Not for windows alone: a dock may float later.
    if (&widget != &m_window)
        widget.setAttribute(Qt::WA_WindowPropagation);
    // The style's pictures for OK and its like are drawn for light windows, and add nothing to the words.
    const auto* box = qobject_cast<QDialogButtonBox*>(widget.parentWidget());
    auto* button = qobject_cast<QPushButton*>(&widget);
    if (box && button && box->standardButton(button) != QDialogButtonBox::NoButton)
        button->setIcon(QIcon());
    // Qt gives tool tips colours of their own, which would win over the inherited ones.
    if (widget.windowType() == Qt::ToolTip)
        widget.setPalette(m_window.palette());
}

} // namespace scopix
