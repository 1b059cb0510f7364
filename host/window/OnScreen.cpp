// SPDX-License-Identifier: MIT
#include "window/OnScreen.h"

#include <QApplication>
#include <QEvent>
#include <QMargins>
#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace scopix
{

namespace
{

// Menus, lists of combo boxes and hints are kept on the screen by Qt.
bool isOwnPlace(const QWidget& widget)
{
    const Qt::WindowType type = widget.windowType();
    return type == Qt::Window || type == Qt::Dialog || type == Qt::Tool;
}

bool belongsTo(const QWidget& window, const QWidget* widget)
{
    while (widget && widget != &window)
        widget = widget->parentWidget();
    return widget;
}

// Before it has been shown, its frame is not known.
QMargins frameOf(const QWidget& window)
{
    const QRect inner = window.geometry();
    const QRect outer = window.frameGeometry();
    if (outer != inner)
        return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
                outer.bottom() - inner.bottom()};
    return {0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0};
}

QScreen* screenOf(const QWidget& window)
{
    QScreen* screen = QGuiApplication::screenAt(window.geometry().center());
    return screen ? screen : QGuiApplication::primaryScreen();
}

} // namespace

OnScreen::OnScreen(QWidget& window)
    : QObject(&window)
    , m_window(window)
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        QCoreApplication::instance()->installEventFilter(this);
}

OnScreen::~OnScreen() = default;

bool OnScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Show || !watched->isWidgetType())
        return false;
    auto& widget = static_cast<QWidget&>(*watched);
    if (widget.isWindow() && isOwnPlace(widget) && belongsTo(m_window, &widget))
        fit(widget);
    return false;
}

QRect OnScreen::fitted(const QRect& window, const QMargins& frame, const QRect& available)
{
    QRect outer = window.marginsAdded(frame);
    outer.setSize(outer.size().boundedTo(available.size()));
    outer.moveRight(qMin(outer.right(), available.right()));
    outer.moveBottom(qMin(outer.bottom(), available.bottom()));
    outer.moveLeft(qMax(outer.left(), available.left()));
    outer.moveTop(qMax(outer.top(), available.top()));
    return outer.marginsRemoved(frame);
}

void OnScreen::fit(QWidget& window)
{
    const QScreen* screen = screenOf(window);
    if (!screen || window.isMaximized() || window.isFullScreen())
        return;
    const QRect place = fitted(window.geometry(), frameOf(window), screen->availableGeometry());
    if (place != window.geometry())
        window.setGeometry(place);
}

} // namespace scopix
