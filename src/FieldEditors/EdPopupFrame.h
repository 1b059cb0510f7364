// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QPointer>

/// The raised window in which an editor shows a grid of inputs. Closed, it gives the focus back to the input
/// that had it before. GUI thread only.
class EdPopupFrame : public QFrame
{
public:
    explicit EdPopupFrame(QWidget* parent);

    /// What can be used of the screen that shows the middle of `place`, in global coordinates; of the one
    /// that shows `widget` where that is on no screen.
    static QRect screenOf(const QRect& place, const QWidget& widget);
    /// Where a popup opens that belongs to a button: at the button's lower right corner, or on the button's
    /// other side where the screen ends before that; never outside of the screen.
    static QPoint placeBeside(const QRect& button, const QSize& popup, const QRect& screen);

    void setVisible(bool visible) override;

private:
    QPointer<QWidget> m_focusedBefore;
};
