// SPDX-License-Identifier: MIT
#include "table/ListTable.h"

#include "fields/FieldText.h"

#include <scopix/editing/SpxText.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace inspector
{

ListTable::ListTable(VertexLink::Click click, QWidget* parent)
    : QWidget(parent)
    , m_view(*new ListTableView(this))
    , m_session(m_view, nullptr)
    , m_edits(m_session)
    , m_clipboard(m_session)
    , m_order(m_session)
    , m_file(m_session)
    , m_vertices(*new VertexLink(m_session, click))
    , m_figures(*new FiguresLine(m_session, this))
    , m_caption(new QLabel(this))
    , m_lineKind(new QComboBox(this))
    , m_line(new QLineEdit(this))
    , m_message(new QLabel(this))
    , m_menu(new QMenu(this))
{
    buildActions();
    buildLayout();
    m_view.setTakeTyped([this](TableCell cell, const QString& text, CellEditor::End end) {
        return m_edits.takeTyped(cell, text, end);
    });
    connect(&m_view, &ListTableView::toggleAsked, &m_edits, &TableEdits::toggle);
    connect(&m_view, &ListTableView::chooseAsked, &m_edits, &TableEdits::choose);
    connect(&m_view, &ListTableView::rowsDropped, &m_edits, &TableEdits::moveTo);
    connect(&m_view, &ListTableView::leaveAsked, this, &ListTable::leave);
    connect(&m_view, &ListTableView::typingDropped, this, &ListTable::say);
    connect(&m_view, &ListTableView::menuAsked, m_menu, [this](const QPoint& at) { m_menu->popup(at); });
    connect(&m_view, &ListTableView::selectionChanged, &m_figures, &FiguresLine::restart);
    connect(&m_view, &ListTableView::selectionChanged, &m_vertices, &VertexLink::restart);
    connect(&m_session, &TableSession::said, this, &ListTable::say);
    connect(&m_session.observer, &ListChangeObserver::acted, this, &ListTable::showWhereItActed);
    connect(&m_order, &TableOrder::orderChanged, this, [this] {
        m_orderedCount = list() ? list()->getNum() : 0;
        showCaption();
    });
    connect(m_line, &QLineEdit::returnPressed, this, &ListTable::runLine);
    connect(m_lineKind, QOverload<int>::of(&QComboBox::activated), this, &ListTable::lineChosen);
}

void ListTable::buildLayout()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_caption->setObjectName(QStringLiteral("caption"));
    m_caption->setTextFormat(Qt::PlainText);
    m_caption->setWordWrap(true);
    layout->addWidget(m_caption);

    auto* line = new QHBoxLayout;
    m_lineKind->setObjectName(QStringLiteral("lineKind"));
    m_lineKind->setAccessibleName(tr("What the line is for"));
    m_lineKind->addItems({tr("Calculate"), tr("Filter"), tr("Find"), tr("Go to")});
    m_line->setObjectName(QStringLiteral("line"));
    m_line->setMaxLength(10'000);
    m_line->setMinimumWidth(m_line->fontMetrics().averageCharWidth() * 6);
    m_lineKind->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_lineKind->setMinimumContentsLength(6);
    line->addWidget(m_lineKind);
    line->addWidget(m_line, 1);
    layout->addLayout(line);

    layout->addWidget(&m_view, 1);
    m_message->setObjectName(QStringLiteral("message"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->hide();
    layout->addWidget(m_message);
    layout->addWidget(&m_figures);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(2);
    buttons->addWidget(newButton(QStringLiteral("+"), m_add));
    buttons->addWidget(newButton(QStringLiteral("\u2212"), m_delete));
    buttons->addWidget(newButton(QStringLiteral("\u2191"), m_up));
    buttons->addWidget(newButton(QStringLiteral("\u2193"), m_down));
    buttons->addStretch();
    auto* more = new QToolButton(this);
    more->setObjectName(QStringLiteral("more"));
    more->setText(tr("Table"));
    more->setMenu(m_menu);
    more->setPopupMode(QToolButton::InstantPopup);
    more->setFocusPolicy(Qt::TabFocus);
    buttons->addWidget(more);
    layout->addLayout(buttons);
    setTabOrder(m_lineKind, m_line);
    setTabOrder(m_line, &m_view);
    QWidget* before = &m_view;
    for (auto* button : findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        setTabOrder(before, button);
        before = button;
    }
    explainLine();
}

QToolButton* ListTable::newButton(const QString& text, QAction* action)
{
    auto* button = new QToolButton(this);
    button->setText(text);
    QString name = action->text();
    name.remove('&');
    button->setAccessibleName(name);
    button->setToolTip(name + QLatin1String(" (") + action->shortcut().toString(QKeySequence::NativeText) +
                       ')');
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
    return button;
}

// The keys are the view's, while it has the focus; the window's own stay untouched elsewhere.
QAction* ListTable::add(const QString& text, const QKeySequence& keys, const std::function<void()>& act)
{
    QAction* action = m_menu->addAction(text);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, act);
    m_view.addAction(action);
    return action;
}

void ListTable::buildActions()
{
    add(tr("Cu&t"), QKeySequence(Qt::CTRL + Qt::Key_X), [this] {
        if (m_clipboard.cut())
            m_edits.clearCells();
    });
    add(tr("&Copy"), QKeySequence(Qt::CTRL + Qt::Key_C), [this] { m_clipboard.copy(); });
    add(tr("&Paste"), QKeySequence(Qt::CTRL + Qt::Key_V), [this] { m_clipboard.paste(); });
    add(tr("Paste as New &Rows"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_V),
        [this] { m_clipboard.pasteRows(); });
    add(tr("Clear Cells or Delete Rows"), QKeySequence(Qt::Key_Delete), [this] { deleteOrClear(); });
    add(tr("C&lear Cells"), QKeySequence(Qt::Key_Backspace), [this] { m_edits.clearCells(); });
    m_menu->addSeparator();
    add(tr("Edit Cell"), QKeySequence(Qt::Key_F2), [this] { m_view.openCell(); });
    add(tr("C&hoose…"), QKeySequence(Qt::ALT + Qt::Key_Down), [this] { m_edits.choose(); });
    add(tr("Go to the Node"), QKeySequence(Qt::CTRL + Qt::Key_Return), [this] { m_edits.followLink(); });
    add(tr("Calc&ulate…"), QKeySequence(Qt::CTRL + Qt::Key_E), [this] { askFor(Line::Calculate); });
    add(tr("Fill &Down"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_D), [this] { m_edits.fillDown(); });
    add(tr("Fill &Series"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S), [this] { m_edits.fillSeries(); });
    m_menu->addSeparator();
    add(tr("&Insert Row Before"), QKeySequence(Qt::Key_Insert), [this] { m_edits.insertRow(); });
    m_add =
        add(tr("&Add Row Behind"), QKeySequence(Qt::CTRL + Qt::Key_Insert), [this] { m_edits.appendRow(); });
    add(tr("Du&plicate Rows"), QKeySequence(Qt::CTRL + Qt::Key_D), [this] { m_edits.duplicateRows(); });
    m_delete =
        add(tr("Delet&e Rows"), QKeySequence(Qt::CTRL + Qt::Key_Minus), [this] { m_edits.deleteRows(); });
    m_up = add(tr("Move Rows &Up"), QKeySequence(Qt::ALT + Qt::SHIFT + Qt::Key_Up),
               [this] { m_edits.moveUp(); });
    m_down = add(tr("Move Rows Do&wn"), QKeySequence(Qt::ALT + Qt::SHIFT + Qt::Key_Down),
                 [this] { m_edits.moveDown(); });
    m_menu->addSeparator();
    add(tr("Select &All"), QKeySequence(Qt::CTRL + Qt::Key_A), [this] {
        TableSelection all;
        all.selectRange({0, 0, m_view.rows().count() - 1, m_view.rows().columnCount() - 1},
                        m_view.selection().current());
        m_view.setSelection(all);
    });
    add(tr("Select Whole Rows"), QKeySequence(Qt::SHIFT + Qt::Key_Space), [this] { selectWholeRows(); });
    add(tr("Select Whole Columns"), QKeySequence(Qt::CTRL + Qt::Key_Space), [this] { selectWholeColumns(); });
    m_menu->addSeparator();
    add(tr("&Find…"), QKeySequence(Qt::CTRL + Qt::Key_F), [this] { askFor(Line::Find); });
    add(tr("Find &Next"), QKeySequence(Qt::Key_F3), [this] { m_order.findAgain(); });
    add(tr("&Go to Row…"), QKeySequence(Qt::CTRL + Qt::Key_G), [this] { askFor(Line::GoTo); });
    add(tr("Filter…"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_L), [this] { askFor(Line::Filter); });
    add(tr("Show Duplicates"), QKeySequence(), [this] { m_order.showDuplicates(); });
    add(tr("Sort Rows Upwards"), QKeySequence(), [this] { m_order.sort(false); });
    add(tr("Sort Rows Downwards"), QKeySequence(), [this] { m_order.sort(true); });
    add(tr("Show All in the List’s Order"), QKeySequence(Qt::CTRL + Qt::Key_0),
        [this] { m_order.showAll(); });
    m_menu->addSeparator();
    add(tr("Sort Values Upwards"), QKeySequence(), [this] { m_order.sortValues(false); });
    add(tr("Sort Values Downwards"), QKeySequence(), [this] { m_order.sortValues(true); });
    m_menu->addSeparator();
    add(tr("Read CSV…"), QKeySequence(), [this] { m_file.read(); });
    add(tr("Write CSV…"), QKeySequence(), [this] { m_file.write(); });
    m_menu->addSeparator();
    add(tr("Reset to De&fault"), QKeySequence(), [this] { m_edits.resetToDefault(); });
    m_ignore = add(tr("I&gnore This List"), QKeySequence(), [this] { m_edits.toggleIgnored(); });
    m_ignore->setCheckable(true);
    connect(m_menu, &QMenu::aboutToShow, this,
            [this] { m_ignore->setChecked(list() && list()->isIgnored()); });
    m_wide = add(tr("Open &Wide"), QKeySequence(Qt::CTRL + Qt::Key_T), [] {});
    m_wide->setVisible(false);
    add(tr("Fit Column Widths"), QKeySequence(), [this] {
        for (int column = 0; column < m_view.rows().columnCount(); ++column)
            m_view.fitColumn(column);
    });
}

// --- The list

void ListTable::setList(SoMField* list)
{
    if (list != m_session.list())
        say({});
    m_view.show(list);
    showCaption();
    explainLine();
    m_figures.restart();
    list ? m_vertices.restart() : m_vertices.stop();
}

// What nobody sees marks nothing in the 3D view.
void ListTable::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_vertices.restart();
}

void ListTable::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_vertices.restart();
}

void ListTable::setStandsAlone(const QString& hint)
{
    m_standsAlone = true;
    m_hint = hint;
    showCaption();
}

void ListTable::refresh()
{
    m_view.refresh();
    showCaption();
    m_figures.restart();
    m_vertices.restart();
    followOrder();
}

// Sorted or filtered rows of a list that became longer or shorter stand for other values: once more, when the
// event loop is reached.
void ListTable::followOrder()
{
    const bool isStale = list() && !m_view.rows().order().isNatural() && m_orderedCount != list()->getNum();
    if (!isStale)
        return;
    m_orderedCount = list()->getNum();
    QTimer::singleShot(0, &m_order, &TableOrder::reapply);
}

void ListTable::showCaption()
{
    const SoMField* shown = list();
    if (!shown) {
        m_caption->setText(m_hint);
        return;
    }
    const int count = shown->getNum();
    QStringList parts{m_standsAlone ? pathOf(*shown) : SpxText::toQString(shown->getName()),
                      SpxText::toQString(shown->getTypeId().getName()),
                      count == 1 ? tr("1 value") : tr("%1 values").arg(count)};
    if (shown->isIgnored())
        parts += tr("ignored");
    if (shown->isConnected())
        parts += tr("connected");
    if (!m_view.rows().order().isNatural())
        parts += tr("%1 shown").arg(m_view.rows().count());
    m_caption->setText(parts.join(QStringLiteral(" · ")));
}

void ListTable::say(const QString& sentence)
{
    m_message->setText(sentence);
    m_message->setVisible(!sentence.isEmpty());
}

void ListTable::showWhereItActed(const SoField* list, int first, int count)
{
    if (list != m_session.list())
        return;
    m_view.dropTyping();
    m_view.refresh();
    const int values = m_session.list()->getNum();
    if (values == 0)
        return;
    const int row = m_view.rows().rowOf(std::min(first, values - 1));
    if (row < 0)
        return;
    const int last = std::min(std::max(row + count - 1, row), m_view.rows().count() - 1);
    TableSelection selection;
    const int column = std::max(m_view.selection().current().column, 0);
    if (count == 1)
        selection.select({row, column});
    else
        selection.selectRange({row, 0, last, m_view.rows().columnCount() - 1}, {row, column});
    m_view.setSelection(selection);
    m_view.scrollTo({row, column});
}

// --- The line above the cells

void ListTable::askFor(Line line)
{
    m_lineKind->setCurrentIndex(int(line));
    lineChosen();
}

void ListTable::lineChosen()
{
    explainLine();
    m_line->setFocus();
    m_line->selectAll();
}

void ListTable::explainLine()
{
    static const char* const Examples[] = {QT_TR_NOOP("x*2, x+row*0.1, clamp(x,0,1)"),
                                           QT_TR_NOOP("x > 3, nan, duplicates"),
                                           QT_TR_NOOP("a number or text"),
                                           QT_TR_NOOP("a row number"),
                                           QT_TR_NOOP("a text for all selected cells"),
                                           QT_TR_NOOP("a part of the text, duplicates")};
    static const char* const Tips[] = {
        QT_TR_NOOP("A formula for every selected cell: x is the cell, row its row, n the number of rows, and "
                   "c1, c2, "
                   "… are the cells of its row. Enter writes."),
        QT_TR_NOOP(
            "Shows only the rows for which this holds: the columns by their headings, row, n; nan, inf or "
            "duplicates; nothing shows all rows. Enter applies."),
        QT_TR_NOOP("Goes to the next cell that holds this. Enter goes on."),
        QT_TR_NOOP("Goes to this row."),
        QT_TR_NOOP("Written to every selected cell by Enter."),
        QT_TR_NOOP("Shows only the rows that hold this text; nothing shows all rows. Enter applies.")};
    int kind = m_lineKind->currentIndex();
    m_line->setAccessibleName(m_lineKind->currentText());
    const bool isOfWords = list() && !m_session.access().hasNumbers();
    if (isOfWords && kind <= int(Line::Filter))
        kind += 4;
    m_line->setPlaceholderText(tr(Examples[kind]));
    m_line->setToolTip(tr(Tips[kind]));
}

void ListTable::runLine()
{
    m_line->setModified(false);
    switch (Line(m_lineKind->currentIndex())) {
    case Line::Calculate:
        m_edits.calculate(m_line->text());
        break;
    case Line::Filter:
        m_order.filter(m_line->text());
        break;
    case Line::Find:
        m_order.find(m_line->text());
        break;
    case Line::GoTo:
        if (m_order.goToRow(m_line->text()))
            m_view.setFocus();
        break;
    }
}

// --- Keys

void ListTable::deleteOrClear()
{
    if (m_view.selection().isOfWholeRows(m_view.rows().columnCount()) && m_view.rows().columnCount() > 1)
        m_edits.deleteRows();
    else
        m_edits.clearCells();
}

void ListTable::selectWholeRows()
{
    TableSelection selection;
    const TableCell current = m_view.selection().current();
    const std::vector<RowBand> bands = m_view.selection().bands();
    for (const RowBand& band : bands)
        selection.addRows(band.first, band.last, m_view.rows().columnCount(), std::max(current.column, 0));
    m_view.setSelection(selection);
}

void ListTable::selectWholeColumns()
{
    const TableCell current = m_view.selection().current();
    if (!current.isValid())
        return;
    TableSelection selection;
    CellRange range{0, current.column, m_view.rows().count() - 1, current.column};
    for (const CellRange& selected : m_view.selection().ranges()) {
        range.left = std::min(range.left, selected.left);
        range.right = std::max(range.right, selected.right);
    }
    selection.selectRange(range, current);
    m_view.setSelection(selection);
}

void ListTable::leave(bool forward)
{
    QWidget* next = &m_view;
    do {
        next = forward ? next->nextInFocusChain() : next->previousInFocusChain();
        const bool takesFocus = (next->focusPolicy() & Qt::TabFocus) && next->isVisible() &&
                                next->isEnabled() && !m_view.isAncestorOf(next);
        if (takesFocus)
            break;
    } while (next != &m_view);
    next->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

} // namespace inspector
