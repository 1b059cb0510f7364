// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>

class QMargins;

namespace scopix
{

/// Keeps what belongs to a window on a screen: the window itself, its dialogs, floating docks and the window
/// of help are moved and made smaller when they open where part of them could not be seen. Owned by the
/// window. GUI thread only.
///
/// Does nothing where windows are drawn off the screen, in pictures whose size is given.
class OnScreen : public QObject
{
    Q_OBJECT

public:
    explicit OnScreen(QWidget& window);
    ~OnScreen() override;

    /// The nearest place and size for what is at `window`, of which `frame` is outside of it.
    static QRect fitted(const QRect& window, const QMargins& frame, const QRect& available);
    /// Moves it where part of it is outside of its screen.
    static void fit(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
};

} // namespace scopix
