// SPDX-License-Identifier: MIT
#include "live/LivePicture.h"

#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace scopix
{

namespace
{

constexpr int NoteFlags =
    static_cast<int>(Qt::AlignHCenter | Qt::AlignTop) | static_cast<int>(Qt::TextWordWrap);

} // namespace

LivePicture::LivePicture(QWidget& view)
    : QWidget(&view)
    , m_view(view)
    , m_offer(new QPushButton(this))
{
    setObjectName(QStringLiteral("livePicture"));
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Picture of the program"));
    view.installEventFilter(this);
    setGeometry(view.rect());
    m_offer->setObjectName(QStringLiteral("liveOffer"));
    m_offer->hide();
    connect(m_offer, &QPushButton::clicked, this, &LivePicture::offerTaken);
}

bool LivePicture::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_view && event->type() == QEvent::Resize)
        setGeometry(m_view.rect());
    return QWidget::eventFilter(watched, event);
}

void LivePicture::setPicture(const QImage& picture)
{
    m_picture = picture;
    update();
}

void LivePicture::setNote(const QString& note)
{
    m_note = note;
    placeOffer();
    update();
}

void LivePicture::setOffer(const QString& text)
{
    m_offer->setText(text);
    m_offer->setVisible(!text.isEmpty());
    placeOffer();
}

QRect LivePicture::noteArea() const
{
    const int margin = fontMetrics().height();
    return fontMetrics().boundingRect(rect().adjusted(margin, margin, -margin, -margin), NoteFlags, m_note);
}

void LivePicture::placeOffer()
{
    m_offer->adjustSize();
    m_offer->move((width() - m_offer->width()) / 2, noteArea().bottom() + fontMetrics().height());
}

void LivePicture::setGrey(bool isGrey)
{
    m_isGrey = isGrey;
    update();
}

QRectF LivePicture::pictureArea() const
{
    const QSizeF size = QSizeF(m_picture.size()).scaled(QSizeF(this->size()), Qt::KeepAspectRatio);
    const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
    return {corner, size};
}

void LivePicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setOpacity(m_isGrey ? 0.4 : 1.0);
    if (hasPicture())
        painter.drawImage(pictureArea(),
                          m_isGrey ? m_picture.convertToFormat(QImage::Format_Grayscale8) : m_picture);
    painter.setOpacity(1.0);
    if (m_note.isEmpty())
        return;
    const int margin = fontMetrics().height();
    const QRect text = noteArea();
    painter.fillRect(text.adjusted(-margin / 2, -margin / 4, margin / 2, margin / 4),
                     palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(text, NoteFlags, m_note);
}

void LivePicture::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->pos();
}

void LivePicture::mouseReleaseEvent(QMouseEvent* event)
{
    const QRectF area = pictureArea();
    const bool isClick = event->button() == Qt::LeftButton &&
                         (event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance();
    if (!isClick || area.isEmpty() || !area.contains(event->pos()))
        return;
    const QPointF place = event->pos() - area.topLeft();
    emit clicked({place.x() / area.width(), place.y() / area.height()});
}

void LivePicture::tellSize(bool isSeen)
{
    emit wanted(isSeen ? QSize(size() * devicePixelRatioF()) : QSize(0, 0));
}

void LivePicture::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    tellSize(true);
}

void LivePicture::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    tellSize(false);
}

void LivePicture::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeOffer();
    if (isVisible())
        tellSize(true);
}

} // namespace scopix
