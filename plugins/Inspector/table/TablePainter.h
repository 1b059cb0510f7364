// SPDX-License-Identifier: MIT
#pragma once

#include "table/TableGeometry.h"
#include "table/TableRows.h"

class QPainter;
class QWidget;

namespace inspector
{

/// Paints what is visible of a table, in the palette and the font of its widget.
class TablePainter
{
public:
    struct State {
        const TableRows& rows;
        const TableGeometry& geometry;
        const TableSelection& selection;
        int gap = -1;      // between which rows dragged ones would go
        int sortedBy = -1; // the column
        bool isDescending = false;
    };

    TablePainter(QPainter& painter, const QWidget& widget, const State& state);
    void paint();

    /// A text as one line of bearable length.
    static QString oneLine(const QString& text);
    /// The space between a cell's text and its sides.
    static int margin(const QWidget& widget);

private:
    void paintCells();
    void paintCell(TableCell cell, const QRect& rect);
    void paintTruth(const QRect& rect, bool isTrue, bool isSelected);
    void paintText(const QRect& rect, TableCell cell);
    void paintHeadings();
    void paintNumbers();
    void paintNumber(int row);
    void paintCurrent();
    void paintGap();
    QString fitting(TableCell cell, int width) const;

    QPainter& m_painter;
    const QWidget& m_widget;
    const State& m_state;
    const int m_margin;
    const bool m_isActive;
};

} // namespace inspector
