// SPDX-License-Identifier: MIT
#include "EdSFImageLabel.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>

EdSFImageLabel::EdSFImageLabel(int width, int height, QWidget* parent, const char* name)
    : QLabel(parent)
    // A window of its own that never takes the focus, nor the pointer where the platform lets it.
    , m_view(new QLabel(this, Qt::ToolTip | Qt::WindowTransparentForInput))
{
    setObjectName(QLatin1String(name));
    setScaledContents(true);
    setMouseTracking(true);
    setFixedSize(width, height);
    setFocusPolicy(Qt::NoFocus);
    m_view->setObjectName(QStringLiteral("pixmapLabel"));
    m_view->setFrameShape(QFrame::StyledPanel);
    m_view->setFrameShadow(QFrame::Raised);
    m_view->setScaledContents(true);
    m_view->setAttribute(Qt::WA_ShowWithoutActivating);
    m_view->setMouseTracking(true);
}

EdSFImageLabel::~EdSFImageLabel()
{
    qApp->removeEventFilter(this);
}

void EdSFImageLabel::setPixmap(const QPixmap& pixmap)
{
    constexpr int Largest = 256;
    m_isEmpty = pixmap.isNull();
    m_view->setFixedSize(std::min(pixmap.width(), Largest), std::min(pixmap.height(), Largest));
    m_view->setPixmap(pixmap);
    QLabel::setPixmap(pixmap);
    if (m_isEmpty)
        hideView();
}

void EdSFImageLabel::mouseMoveEvent(QMouseEvent* event)
{
    QLabel::mouseMoveEvent(event);
    if (!m_view->isVisible() && !m_isEmpty)
        showView();
}

void EdSFImageLabel::showView()
{
    m_view->move(viewPosition());
    m_view->show();
    qApp->installEventFilter(this);
}

QPoint EdSFImageLabel::viewPosition() const
{
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    QPoint at = mapToGlobal(QPoint(0, 0));
    if (desktop.width() - m_view->width() < at.x())
        at.rx() -= m_view->width();
    if (desktop.height() - m_view->height() < at.y())
        at.ry() -= m_view->height();
    return at;
}

void EdSFImageLabel::hideView()
{
    qApp->removeEventFilter(this);
    m_view->hide();
}

void EdSFImageLabel::hideEvent(QHideEvent* event)
{
    hideView();
    QLabel::hideEvent(event);
}

// The view may cover the thumbnail, so that the pointer leaves it without moving away: the place decides.
bool EdSFImageLabel::eventFilter(QObject* watched, QEvent* event)
{
    QPoint pointer = QCursor::pos();
    switch (event->type()) {
    case QEvent::MouseMove:
        pointer = static_cast<QMouseEvent*>(event)->globalPos();
        [[fallthrough]];
    case QEvent::Leave:
    case QEvent::Enter:
        if (!rect().contains(mapFromGlobal(pointer)))
            hideView();
        break;
    default:
        break;
    }
    return QLabel::eventFilter(watched, event);
}
