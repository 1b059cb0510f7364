// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QMainWindow;

namespace scopix
{

/// Hands what is dropped on a dock to its main window, also where the dock floats. What a part of the dock
/// has a use for stays there. Owned by the window. GUI thread only.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// For the docks that are there and those to come.
    explicit FileDrop(QMainWindow& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMainWindow& m_window;
};

} // namespace scopix
