// SPDX-License-Identifier: MIT
#include "table/TableEdits.h"

#include "table/CellFormula.h"

#include <scopix/SpxSceneServices.h>
#include <scopix/editing/SpxFieldEdit.h>
#include <xsg/nodes/base/SoMFNode.h>

#include <QAction>
#include <QColorDialog>
#include <QMenu>

#include <algorithm>

namespace inspector
{

namespace
{

std::vector<RowBand> one(int element, int column)
{
    return {{element, element, 1U << column}};
}

} // namespace

TableEdits::TableEdits(TableSession& session)
    : QObject(&session)
    , m_session(session)
{
}

bool TableEdits::write(const std::vector<RowBand>& bands, const ListWriter::WriteCell& cell)
{
    emit m_session.said({});
    return m_session.list() && m_session.report(m_session.writer.writeCells(bands, cell));
}

// --- Cells

bool TableEdits::setText(SoMField& values, int at, int element, int column, const QString& text) const
{
    const ListAccess& access = m_session.access();
    if (access.setText(values, at, column, text))
        return true;
    if (access.kind() != ListAccess::Kind::Number)
        return false;
    CellFormula formula(text, *m_session.list(), access);
    return formula.isValid() &&
           access.setNumber(values, at, column, formula.evaluate(values, at, element, column));
}

bool TableEdits::takeTyped(TableCell cell, const QString& text, CellEditor::End end)
{
    if (!m_session.rows().isThere(cell.row))
        return true;
    const std::vector<RowBand> bands = end == CellEditor::End::All
                                           ? m_session.selectedElements()
                                           : one(m_session.rows().elementOf(cell.row), cell.column);
    const bool isWritten = write(bands, [&](SoMField& values, int at, int element, int column) {
        return setText(values, at, element, column, text);
    });
    if (!isWritten && m_session.writer.failure().isEmpty())
        sayNoValue(text);
    return isWritten;
}

void TableEdits::sayNoValue(const QString& text)
{
    const TableCell at = m_session.writer.failedCell();
    const QString type = QString::fromLatin1(m_session.list()->getTypeId().getName().getString());
    emit m_session.said(
        tr("“%1” was not written to row %2, %3, since it is no value that a list of type %4 can "
           "hold; type another or press Esc.")
            .arg(text.left(60))
            .arg(at.row)
            .arg(m_session.rows().longHeading(at.column), type));
}

bool TableEdits::calculate(const QString& text)
{
    if (!m_session.list())
        return false;
    const ListAccess& access = m_session.access();
    if (!access.hasNumbers())
        return write(m_session.selectedElements(), [&](SoMField& values, int at, int, int column) {
            return access.setText(values, at, column, text);
        });
    CellFormula formula(text, *m_session.list(), access);
    if (!formula.isValid()) {
        emit m_session.said(formula.error());
        return false;
    }
    double result = 0;
    const bool isWritten =
        write(m_session.selectedElements(), [&](SoMField& values, int at, int element, int column) {
            result = formula.evaluate(values, at, element, column);
            return access.setNumber(values, at, column, result);
        });
    if (!isWritten && m_session.writer.failure().isEmpty())
        sayNoValue(QString::number(result));
    return isWritten;
}

void TableEdits::clearCells()
{
    if (!m_session.list())
        return;
    const std::unique_ptr<SoMField> fresh = m_session.list()->makeSlice();
    if (!fresh)
        return;
    fresh->setNum(1);
    const ListAccess& access = m_session.access();
    QStringList texts;
    for (int column = 0; column < access.columnCount(); ++column)
        texts.append(access.text(*fresh, 0, column));
    write(m_session.selectedElements(), [&](SoMField& values, int at, int, int column) {
        return access.setText(values, at, column, texts[column]);
    });
}

// The first selected row of each column gives the value of those below it.
void TableEdits::fillDown()
{
    const std::vector<RowBand> bands = m_session.selectedElements();
    if (bands.empty())
        return;
    const ListAccess& access = m_session.access();
    QStringList firsts;
    for (int column = 0; column < access.columnCount(); ++column)
        firsts.append(access.text(*m_session.list(), bands.front().first, column));
    write(bands, [&](SoMField& values, int at, int, int column) {
        return access.setText(values, at, column, firsts[column]);
    });
}

void TableEdits::fillSeries()
{
    const std::vector<RowBand> bands = m_session.selectedElements();
    const bool hasTwo = !bands.empty() && (bands.front().rowCount() > 1 || bands.size() > 1);
    if (!hasTwo || !m_session.access().hasNumbers()) {
        emit m_session.said(
            tr("A series needs at least two selected rows of numbers; select them and try again."));
        return;
    }
    const ListAccess& access = m_session.access();
    const SoMField& list = *m_session.list();
    const int first = bands.front().first;
    const int second = bands.front().rowCount() > 1 ? first + 1 : bands[1].first;
    std::vector<double> starts;
    std::vector<double> steps;
    for (int column = 0; column < access.columnCount(); ++column) {
        starts.push_back(access.number(list, first, column));
        steps.push_back(access.number(list, second, column) - starts.back());
    }
    int row = -1;
    int lastElement = -1;
    write(bands, [&](SoMField& values, int at, int element, int column) {
        row += element != lastElement;
        lastElement = element;
        const auto which = std::size_t(column);
        return row < 2 || access.setNumber(values, at, column, starts[which] + row * steps[which]);
    });
}

void TableEdits::toggle()
{
    const TableCell current = m_session.view.selection().current();
    if (!m_session.list() || m_session.access().kind() != ListAccess::Kind::Truth || !current.isValid())
        return;
    const int element = m_session.rows().elementOf(current.row);
    const bool isTrue = m_session.access().number(*m_session.list(), element, 0) != 0;
    write(m_session.selectedElements(), [&](SoMField& values, int at, int, int column) {
        return m_session.access().setNumber(values, at, column, isTrue ? 0 : 1);
    });
}

// --- Choosing

QPoint TableEdits::menuPlace() const
{
    const QRect rect = m_session.view.geometry().cell(m_session.view.selection().current());
    return m_session.view.viewport()->mapToGlobal(rect.isEmpty() ? QPoint() : rect.bottomLeft());
}

void TableEdits::choose()
{
    const TableCell current = m_session.view.selection().current();
    if (!m_session.list() || !current.isValid() || !m_session.rows().isThere(current.row))
        return;
    if (m_session.rows().swatch(current.row).isValid())
        chooseColor();
    else if (m_session.access().kind() == ListAccess::Kind::Flags)
        chooseFlags();
    else if (!m_session.access().choices(*m_session.list()).isEmpty())
        chooseName();
}

void TableEdits::chooseName()
{
    QMenu menu(&m_session.view);
    menu.setObjectName(QStringLiteral("choices"));
    const TableCell current = m_session.view.selection().current();
    const QString present = m_session.rows().text(current.row, current.column);
    for (const QString& name : m_session.access().choices(*m_session.list())) {
        QAction* action = menu.addAction(name);
        action->setCheckable(true);
        action->setChecked(name == present);
        if (name == present)
            menu.setActiveAction(action);
    }
    const QAction* chosen = menu.exec(menuPlace());
    if (!chosen || !m_session.list())
        return;
    const QString name = chosen->text();
    write(m_session.selectedElements(), [&](SoMField& values, int at, int element, int column) {
        return setText(values, at, element, column, name);
    });
}

// A bit that is switched goes to the state opposite to the current row's, in every selected row.
void TableEdits::chooseFlags()
{
    QMenu menu(&m_session.view);
    menu.setObjectName(QStringLiteral("choices"));
    const TableCell current = m_session.view.selection().current();
    const QStringList set = m_session.rows().text(current.row, 0).split(QLatin1String(" | "));
    for (const QString& name : m_session.access().choices(*m_session.list())) {
        QAction* action = menu.addAction(name);
        action->setCheckable(true);
        action->setChecked(set.contains(name));
    }
    const QAction* chosen = menu.exec(menuPlace());
    if (!chosen || !m_session.list())
        return;
    const QString name = chosen->text();
    const bool isSet = chosen->isChecked();
    const ListAccess& access = m_session.access();
    write(m_session.selectedElements(), [&](SoMField& values, int at, int, int column) {
        QStringList names = access.text(values, at, column).split(QLatin1String(" | "));
        names.removeAll(name);
        if (isSet)
            names.append(name);
        return access.setText(values, at, column, names.isEmpty() ? QStringLiteral("0") : names.join('|'));
    });
}

// Channels that were not touched keep their bits.
void TableEdits::chooseColor()
{
    const QColor start = m_session.rows().swatch(m_session.view.selection().current().row);
    const QColor picked = QColorDialog::getColor(start, &m_session.view, tr("Colour of the Selected Rows"),
                                                 QColorDialog::DontUseNativeDialog);
    if (!picked.isValid() || !m_session.list())
        return;
    const int before[] = {start.red(), start.green(), start.blue()};
    const int after[] = {picked.red(), picked.green(), picked.blue()};
    std::vector<RowBand> bands = m_session.selectedElements();
    for (RowBand& band : bands)
        band.columns = 7;
    write(bands, [&](SoMField& values, int at, int, int column) {
        return before[column] == after[column] ||
               m_session.access().setNumber(values, at, column, after[column] / 255.0);
    });
}

void TableEdits::followLink()
{
    const auto* links = dynamic_cast<const SoMFNode*>(m_session.list());
    const int row = m_session.view.selection().current().row;
    SpxSceneServices* services = SpxSceneServices::getInstance();
    if (!links || !m_session.rows().isThere(row) || !services)
        return;
    if (SoNode* node = (*links)[m_session.rows().elementOf(row)].get())
        services->selectNode(node); // which shows another editor
}

void TableEdits::resetToDefault()
{
    if (m_session.list() && !SpxFieldEdit::setToDefault(m_session.list()))
        emit m_session.said(
            tr("This list has no default value, since it belongs to no node that can be made anew."));
}

void TableEdits::toggleIgnored()
{
    if (SoMField* list = m_session.list())
        SpxFieldEdit::setIgnored(list, !list->isIgnored());
}

// --- Rows

// Rows have no place of their own while others are shown in between or in another order.
bool TableEdits::isOrdered()
{
    if (m_session.rows().order().isNatural())
        return false;
    emit m_session.said(
        tr("Rows cannot be added or moved while they are sorted or filtered; show all rows in the "
           "list's order first."));
    return true;
}

void TableEdits::selectElements(int first, int count)
{
    m_session.view.refresh();
    TableSelection selection;
    const int column = std::max(m_session.view.selection().current().column, 0);
    selection.selectRows(first, first + count - 1, m_session.rows().columnCount(), column);
    m_session.view.setSelection(selection);
    m_session.view.scrollTo({first, column});
}

void TableEdits::insertRow()
{
    if (!m_session.list() || isOrdered())
        return;
    const int row = std::max(m_session.view.selection().current().row, 0);
    if (m_session.report(m_session.writer.insertRows(row, 1)))
        selectElements(row, 1);
}

void TableEdits::appendRow()
{
    if (!m_session.list() || isOrdered())
        return;
    const int row = m_session.view.selection().current().row + 1;
    if (m_session.report(m_session.writer.insertRows(row, 1)))
        selectElements(row, 1);
}

void TableEdits::duplicateRows()
{
    if (!m_session.list() || isOrdered())
        return;
    const std::vector<RowBand> bands = m_session.selectedElements();
    if (!bands.empty() && m_session.report(m_session.writer.duplicateRows(bands)))
        selectElements(bands.front().last + 1, int(bands.front().rowCount()));
}

void TableEdits::deleteRows()
{
    if (!m_session.list())
        return;
    const std::vector<RowBand> bands = m_session.selectedElements();
    if (bands.empty() || !m_session.report(m_session.writer.removeRows(bands)))
        return;
    const TableCell current = m_session.view.selection().current();
    const int row = m_session.rows().order().isNatural() ? bands.front().first : 0;
    m_session.view.refresh();
    if (m_session.rows().count() > 0)
        m_session.view.goTo({std::min(row, m_session.rows().count() - 1), current.column});
}

void TableEdits::moveBy(int rows)
{
    if (!m_session.list() || isOrdered())
        return;
    const std::vector<RowBand> bands = m_session.selectedElements();
    if (bands.empty())
        return;
    const int gap = rows < 0 ? bands.front().first + rows : bands.back().last + 1 + rows;
    if (gap >= 0 && gap <= m_session.list()->getNum())
        moveTo(gap);
}

void TableEdits::moveTo(int gap)
{
    if (!m_session.list() || isOrdered())
        return;
    const std::vector<RowBand> bands = m_session.selectedElements();
    if (!m_session.report(m_session.writer.moveRows(bands, gap)))
        return;
    int count = 0;
    int first = gap;
    for (const RowBand& band : bands) {
        count += int(band.rowCount());
        first -= band.first < gap ? std::min(band.last + 1, gap) - band.first : 0;
    }
    selectElements(first, count);
}

} // namespace inspector
