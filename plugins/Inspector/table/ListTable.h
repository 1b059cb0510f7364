// SPDX-License-Identifier: MIT
#pragma once

#include "table/FiguresLine.h"
#include "table/TableClipboard.h"
#include "table/TableEdits.h"
#include "table/TableFile.h"
#include "table/TableOrder.h"
#include "table/TableSession.h"
#include "table/VertexLink.h"

#include <QWidget>

class QAction;
class QComboBox;
class QLineEdit;
class QMenu;
class QToolButton;

namespace inspector
{

/// A list as a table with all that belongs to it: the line for formulas, filters and searches, the cells,
/// what they amount to, and the menu. Showing never writes.
class ListTable : public QWidget
{
    Q_OBJECT

public:
    /// What the line above the cells is for.
    enum class Line { Calculate, Filter, Find, GoTo };

    /// `click`: what a click near a vertex of the list in the 3D view does besides showing its row.
    explicit ListTable(VertexLink::Click click = VertexLink::Click::StaysHere, QWidget* parent = nullptr);

    /// Null: nothing.
    void setList(SoMField* list);
    SoMField* list() const { return m_session.list(); }
    /// After the list changed.
    void refresh();
    /// Applies or drops what is being typed.
    void endTyping() { m_view.endTyping(); }
    void dropTyping() { m_view.dropTyping(); }

    ListTableView& view() { return m_view; }
    TableFile& file() { return m_file; }
    FiguresLine& figures() { return m_figures; }
    QMenu& menu() { return *m_menu; }
    void askFor(Line line);
    /// For a list whose node may be another than the selected one: its name stands above the cells too.
    /// `hint` is what stands there without a list.
    void setStandsAlone(const QString& hint);
    /// The menu's entry that shows the list in the wide table; hidden at first.
    QAction& wideAction() { return *m_wide; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void buildLayout();
    void buildActions();
    QAction* add(const QString& text, const QKeySequence& keys, const std::function<void()>& act);
    QToolButton* newButton(const QString& text, QAction* action);

    void runLine();
    void lineChosen();
    void explainLine();
    void showWhereItActed(const SoField* list, int first, int count);
    void say(const QString& sentence);
    void showCaption();
    void leave(bool forward);
    void deleteOrClear();
    void selectWholeRows();
    void selectWholeColumns();
    void followOrder();

    ListTableView& m_view;
    TableSession m_session;
    TableEdits m_edits;
    TableClipboard m_clipboard;
    TableOrder m_order;
    TableFile m_file;
    VertexLink& m_vertices;
    FiguresLine& m_figures;
    QLabel* m_caption;
    QComboBox* m_lineKind;
    QLineEdit* m_line;
    QLabel* m_message;
    QMenu* m_menu;
    QAction* m_add = nullptr;
    QAction* m_delete = nullptr;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
    QAction* m_ignore = nullptr;
    QAction* m_wide = nullptr;
    bool m_standsAlone = false;
    QString m_hint;
    int m_orderedCount = 0; // of values, when the rows were sorted or filtered
};

} // namespace inspector
