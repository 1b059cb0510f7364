// SPDX-License-Identifier: MIT
#pragma once

#include "table/CellTyping.h"
#include "table/TableColumns.h"
#include "table/TableGeometry.h"
#include "table/TableKeys.h"
#include "table/TableMouse.h"
#include "table/TableRows.h"
#include "table/TableSelection.h"

#include <QAbstractScrollArea>

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
    CellEditor* cellEditor() const { return m_typing.editor(); }

    /// Another list, or null. Scrolled to its start, nothing selected but its first cell.
    void show(SoMField* list);
    /// After the list changed: as many rows as it has now, and what is visible. What is being typed stays.
    void refresh();
    /// Another order; the current element stays current where it is still shown.
    void setOrder(RowOrder order, int sortedBy = -1, bool isDescending = false);

    /// Ends the typing.
    void setSelection(const TableSelection& selection);
    /// What is being typed stays open.
    void changeSelection(TableSelection selection);
    void goTo(TableCell cell);
    /// To the nearest cell that there is; `extends` selects all up to it.
    void go(TableCell to, bool extends);
    void scrollTo(TableCell cell);
    void setTakeTyped(CellTyping::Take take) { m_typing.setTake(std::move(take)); }
    /// Opens the current cell; `typed` replaces what it shows.
    void openCell(const QString& typed = QString());
    /// Ends the typing as a loss of focus does.
    void endTyping() { m_typing.end(CellEditor::End::FocusLost); }
    /// Ends it without a report.
    void dropTyping() { m_typing.drop(); }

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
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    void layOut();
    void layOutColumns();
    void selectionHasChanged();
    TableKeys keys() const;
    QAction* actionFor(const QKeyEvent& event) const;
    bool isOwnKey(const QKeyEvent& event) const;
    bool navigate(const QKeyEvent& event);
    void goOn(CellEditor::End end);
    void showToolTip(const QHelpEvent& event);

    TableRows m_rows;
    TableGeometry m_geometry;
    TableSelection m_selection;
    TableColumns m_columns;
    CellTyping& m_typing;
    TableMouse& m_mouse;
    int m_sortedBy = -1;
    bool m_isDescending = false;
};

} // namespace inspector
