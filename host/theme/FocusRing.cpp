// SPDX-License-Identifier: MIT
#include "theme/FocusRing.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

namespace scopix
{

namespace
{

constexpr int Width = 2;

class Ring : public QWidget
{
public:
    explicit Ring(QWidget& widget)
        : QWidget(&widget)
    {
        setObjectName(QStringLiteral("focusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const int inset = Width / 2;
        painter.setPen(QPen(palette().color(QPalette::Highlight), Width));
        painter.drawRect(rect().adjusted(inset, inset, -inset, -inset));
    }
};

bool isOf(const QWidget& window, const QWidget* widget)
{
    while (widget && widget != &window)
        widget = widget->parentWidget();
    return widget;
}

} // namespace

FocusRing::FocusRing(QWidget& window)
    : QObject(&window)
    , m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) { follow(now); });
}

void FocusRing::follow(QWidget* focus)
{
    if (m_ring) {
        m_ring->parentWidget()->removeEventFilter(this);
        delete m_ring;
    }
    const bool isByKeys = focus && QGuiApplication::mouseButtons() == Qt::NoButton &&
                          focus->window()->testAttribute(Qt::WA_KeyboardFocusChange);
    if (!isByKeys || !isOf(m_window, focus))
        return;
    m_ring = new Ring(*focus);
    focus->installEventFilter(this);
    place();
    m_ring->show();
}

void FocusRing::place()
{
    m_ring->setGeometry(m_ring->parentWidget()->rect());
    m_ring->raise();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    if (m_ring && watched == m_ring->parentWidget()) {
        if (event->type() == QEvent::Resize)
            place();
        else if (event->type() == QEvent::MouseButtonPress)
            m_ring->hide();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace scopix
