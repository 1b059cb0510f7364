// SPDX-License-Identifier: MIT
#pragma once

#include "table/TableGeometry.h"

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

class QMouseEvent;

namespace inspector
{

class ListTableView;

/// What the mouse does in a table: clicks and drags select, whole rows are dragged elsewhere, the edges of
/// headings make columns wider. A drag beyond the edge scrolls. Lives in its view.
class TableMouse : public QObject
{
    Q_OBJECT

public:
    explicit TableMouse(ListTableView& view);

    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void doubleClick(const QMouseEvent& event);

    bool isDragging() const { return m_drag != Drag::None; }
    void endDrag();
    /// Before which row the dragged rows would go; -1 for none.
    int gap() const { return m_gap; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    enum class Drag { None, Cells, Rows, Column, Move };

    void pressIn(const TableGeometry::Place& place, Qt::KeyboardModifiers modifiers);
    void pressOnCell(TableCell cell, Qt::KeyboardModifiers modifiers);
    void pressOnNumber(TableCell cell, Qt::KeyboardModifiers modifiers);
    void pressOnHeading(const TableGeometry::Place& place, Qt::KeyboardModifiers modifiers);
    void pressOnCorner();
    void openOrChoose(TableCell cell);
    void dragTo(QPoint position);
    void scrollTowards(QPoint position);
    void setCursorFor(const TableGeometry::Place& place);

    ListTableView& m_view;
    Drag m_drag = Drag::None;
    QPoint m_dragPosition;
    int m_draggedColumn = 0;
    int m_dragStart = 0;
    int m_gap = -1;
    QBasicTimer m_autoScroll;
};

} // namespace inspector
