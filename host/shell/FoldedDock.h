// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QDockWidget;
class QWidget;

namespace scopix
{

/// Shows nothing of a dock but its title, until the user clicks that or makes the dock float, or a text in it
/// changes, or a list whose property `unfoldsDock` is true gets a row: then there is something to say. Owned
/// by the dock, and deleted when the dock unfolds. GUI thread only.
class FoldedDock : public QObject
{
    Q_OBJECT

public:
    explicit FoldedDock(QDockWidget& dock);
    ~FoldedDock() override;

    /// Null where the dock is not folded.
    static FoldedDock* of(const QDockWidget& dock);
    void unfold();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fold();
    void watchTexts();
    template <class Text>
    void watchAll();

    QDockWidget& m_dock;
    QPointer<QWidget> m_content;
    bool m_isOpen = false; // and soon deleted
};

} // namespace scopix
