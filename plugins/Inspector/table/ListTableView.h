// SPDX-License-Identifier: MIT
#pragma once

#include "table/CellEditor.h"
#include "table/TableGeometry.h"
#include "table/TableRows.h"
#include "table/TableSelection.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QPointer>

#include <functional>

class QAction;
class QHelpEvent;

namespace inspector
{

/// A table straight on a list's memory: it keeps nothing per row, so that a list of a hundred million values
/// opens as quickly as one of ten. It shows, selects and lets cells be typed; what is typed or asked for, it
/// reports, and writes nothing itself. Its actions are reached by their keys while it has the focus.
class ListTableView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit ListTableView(QWidget* parent = nullptr);

    TableRows& rows() { return m_rows; }
    const TableRows& rows() const { return m_rows; }
    const TableSelection& selection() const { return m_selection; }
    const TableGeometry& geometry() const { return m_geometry; }
    CellEditor* cellEditor() const { return m_editor; }

    /// Another list, or null. Scrolled to its start, nothing selected but its first cell.
    void show(SoMField* list);
    /// After the list changed: as many rows as it has now, and what is visible. What is being typed stays.
    void refresh();
    /// Another order; the current element stays current where it is still shown.
    void setOrder(RowOrder order, int sortedBy = -1, bool isDescending = false);

    void setSelection(const TableSelection& selection);
    void goTo(TableCell cell);
    void scrollTo(TableCell cell);
    /// What is done with the text typed into a cell; false keeps the cell open. Not called for typing that
    /// was given up or that ended as it began.
    using TakeTyped = std::function<bool(TableCell cell, const QString& text, CellEditor::End end)>;
    void setTakeTyped(TakeTyped take) { m_takeTyped = std::move(take); }
    /// Opens the current cell; `typed` replaces what it shows.
    void openCell(const QString& typed = QString());
    /// Ends the typing as a loss of focus does.
    void endTyping();
    /// Ends it without a report.
    void dropTyping();

    int columnWidth(int column) const { return m_geometry.widths[std::size_t(column)]; }
    void setColumnWidth(int column, int width);
    /// As wide as what is visible of it.
    void fitColumn(int column);

signals:
    void selectionChanged();
    void typingDropped(const QString& why);
    void toggleAsked();
    void chooseAsked();
    void rowsDropped(int gap);
    void menuAsked(const QPoint& globalPosition);
    void leaveAsked(bool forward);

protected:
    bool viewportEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool /*next*/) override { return false; } // Tab goes to the next cell
    void scrollContentsBy(int dx, int dy) override;
    void timerEvent(QTimerEvent* event) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    enum class Drag { None, Cells, Rows, Column, Move };

    void layOut();
    void layOutColumns();
    int leastWidth(int column) const;
    void placeEditor();
    void selectionHasChanged();

    QAction* actionFor(const QKeyEvent& event) const;
    bool navigate(const QKeyEvent& event);
    void go(TableCell to, bool extends);
    void goOn(CellEditor::End end);
    bool isTyping(const QKeyEvent& event) const;

    void pressIn(const TableGeometry::Place& place, Qt::KeyboardModifiers modifiers);
    void pressOnCell(TableCell cell, Qt::KeyboardModifiers modifiers);
    void pressOnNumber(TableCell cell, Qt::KeyboardModifiers modifiers);
    void pressOnHeading(const TableGeometry::Place& place, Qt::KeyboardModifiers modifiers);
    void dragTo(QPoint position);
    void endDrag();
    void setCursorFor(const TableGeometry::Place& place);

    void typingEnded(CellEditor::End end);
    bool isTypingTaken(CellEditor::End end);
    void showToolTip(const QHelpEvent& event);
    void editorFollows();

    TableRows m_rows;
    TakeTyped m_takeTyped;
    TableGeometry m_geometry;
    TableSelection m_selection;
    std::vector<int> m_userWidths; // 0: as wide as suits
    QPointer<CellEditor> m_editor;
    Drag m_drag = Drag::None;
    QPoint m_dragPosition;
    int m_draggedColumn = 0;
    int m_dragStart = 0;
    int m_gap = -1;
    int m_sortedBy = -1;
    bool m_isDescending = false;
    QBasicTimer m_autoScroll;
};

} // namespace inspector
