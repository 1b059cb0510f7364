// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A thumbnail. While the pointer is over it, a larger view of the picture (at most 256 by 256) stands beside
/// it.
class EdSFImageLabel : public QLabel
{
    Q_OBJECT

public:
    EdSFImageLabel(int width, int height, QWidget* parent, const char* name = nullptr);
    ~EdSFImageLabel() override;

    /// An empty picture has no larger view.
    void setPixmap(const QPixmap& pixmap);
    QLabel* enlargedView() const { return m_view; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showView();
    void hideView();
    QPoint viewPosition() const;

    QLabel* m_view;
    bool m_isEmpty = true;
};
