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

    void setVisible(bool visible) override;

private:
    QPointer<QWidget> m_focusedBefore;
};
