// SPDX-License-Identifier: MIT
#pragma once

#include "console/TextFinder.h"

#include <QListView>

namespace profiler
{

class LogModel;

/// Shows the rows of a log, one below the other in rows of one height, of which only those that are seen cost
/// anything. Stays at the end while the log grows, unless the user has scrolled away from it. GUI thread
/// only.
class LogView : public QListView
{
    Q_OBJECT

public:
    explicit LogView(LogModel& model, QWidget* parent = nullptr);

    /// Marked wherever it stands; empty for nothing.
    void setMarked(const QString& text);
    bool isFollowing() const { return m_isFollowing; }
    void goTo(int row);
    /// Of the selected rows, to the clipboard. Returns how many.
    int copySelected() const;

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;

signals:
    void lineActivated(int row);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    bool isIndexHidden(const QModelIndex& index) const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;

private:
    void takeFont();
    int rowHeight() const;
    int rowsPerPage() const;
    void paintRow(QPainter& painter, int row, const QRect& place);
    void paintMarks(QPainter& painter, const QString& text, const QRect& place);
    QColor colorOf(int row, bool isSelected) const;

    LogModel& m_model;
    QString m_marked;
    int m_widest = 0; // of what was painted so far
    bool m_isFollowing = true;
    bool m_isScrolling = false; // by itself
};

} // namespace profiler
