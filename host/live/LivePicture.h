// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

class QPushButton;

namespace scopix
{

/// The picture that a running program shows, as large as it fits, in place of the 3D view below it. Asks for
/// pictures only while it is seen. GUI thread only.
class LivePicture : public QWidget
{
    Q_OBJECT

public:
    /// Lies over `view`, which owns it.
    explicit LivePicture(QWidget& view);

    void setPicture(const QImage& picture);
    bool hasPicture() const { return !m_picture.isNull(); }
    /// Instead of a picture, or over it; empty for none.
    void setNote(const QString& note);
    /// A button below the note; empty for none.
    void setOffer(const QString& text);
    /// The program is gone: the picture is the last one.
    void setGrey(bool isGrey);
    /// Where the picture is shown.
    QRectF pictureArea() const;

signals:
    /// So many pixels are of use; none while nothing is seen.
    void wanted(const QSize& size);
    /// At a place of the picture: 0, 0 is its upper left corner and 1, 1 the lower right one.
    void clicked(const QPointF& place);
    void offerTaken();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void tellSize(bool isSeen);
    QRect noteArea() const;
    void placeOffer();

    QWidget& m_view;
    QImage m_picture;
    QString m_note;
    QPushButton* m_offer;
    QPoint m_pressed;
    bool m_isGrey = false;
};

} // namespace scopix
