// SPDX-License-Identifier: MIT
#include "table/ListWriter.h"

#include "table/PieceWork.h"

#include <scopix/editing/SpxFieldEdit.h>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int RowsAtOnce = 4096; // of a long edit, between two turns of the event loop

// By text, in which the two zeros differ; a long change counts as one.
bool isUnchanged(ListChange& change)
{
    if (change.after().getNum() > RowsAtOnce)
        return false;
    SbString before;
    SbString after;
    change.before().get(before);
    change.after().get(after);
    return before == after;
}

int count(const RowBand& band)
{
    return band.last - band.first + 1;
}

} // namespace

ListWriter::ListWriter(TableRows& rows, ListChangeObserver& observer, QWidget* parent)
    : m_rows(rows)
    , m_observer(observer)
    , m_parent(parent)
{
}

bool ListWriter::begin()
{
    m_failure.clear();
    m_failedCell = {};
    return m_rows.list() != nullptr;
}

bool ListWriter::fail(const QString& why)
{
    m_failure = why;
    return false;
}

bool ListWriter::commit(ListChange change)
{
    if (change.isEmpty())
        return false;
    SoMField* list = m_rows.list();
    auto command = std::make_unique<ListChangeCommand>(*list, std::move(change), &m_observer);
    bool isWritten = false;
    SpxFieldEdit::apply(list, std::move(command),
                        [&isWritten, written = command.get()] { return isWritten = written->write(); });
    return isWritten ||
           fail(tr("There is not enough memory for this change; close other programs or change fewer rows."));
}

bool ListWriter::writeCells(std::vector<RowBand> bands, const WriteCell& write, int growth)
{
    if (!begin())
        return false;
    const SoMField* list = m_rows.list();
    ListChange change(*list);
    for (const RowBand& band : bands) {
        if (!change.add(*list, {band.first, count(band), count(band)}))
            return fail(tr("There is not enough memory to change so many rows; select fewer."));
    }
    if (growth > 0) {
        const int end = list->getNum();
        if (!change.add(*list, {end, 0, growth}))
            return fail(tr("There is not enough memory for %1 more rows; add fewer.").arg(growth));
        bands.push_back({end, end + growth - 1, bands.empty() ? ~0U : bands.back().columns});
    }
    const std::uint32_t version = list->getChangeCount();
    if (!writeAll(change, bands, write))
        return false;
    if (m_rows.list() != list || list->getChangeCount() != version)
        return fail(
            tr("The list was changed by somebody else meanwhile, so nothing was written; try again."));
    if (isUnchanged(change))
        return true;
    return commit(std::move(change));
}

bool ListWriter::writeAll(ListChange& change, const std::vector<RowBand>& bands, const WriteCell& write)
{
    const int columns = m_rows.columnCount();
    const int total = change.after().getNum();
    auto band = bands.begin();
    int inBand = 0;
    int at = 0;
    const auto writeRow = [&] {
        for (int column = 0; column < columns; ++column) {
            m_failedCell = {band->first + inBand, column};
            if (band->has(column) && !write(change.after(), at, band->first + inBand, column))
                return false;
        }
        return true;
    };
    const auto step = [&]() -> PieceWork::Progress {
        for (const int end = std::min(total - at, RowsAtOnce) + at; at < end; ++at) {
            if (!writeRow())
                return {at, total, true};
            if (++inBand == count(*band)) {
                ++band;
                inBand = 0;
            }
        }
        return {at, total};
    };
    return PieceWork::run(m_parent, tr("Changing %1 rows…").arg(total), step);
}

bool ListWriter::insertRows(int start, int number)
{
    if (!begin())
        return false;
    ListChange change(*m_rows.list());
    if (!change.add(*m_rows.list(), {start, 0, number}))
        return fail(tr("There is not enough memory for %1 more rows; add fewer.").arg(number));
    return commit(std::move(change));
}

bool ListWriter::removeRows(const std::vector<RowBand>& bands)
{
    if (!begin())
        return false;
    ListChange change(*m_rows.list());
    for (const RowBand& band : bands) {
        if (!change.add(*m_rows.list(), {band.first, count(band), 0}))
            return fail(tr("There is not enough memory to remember so many rows for undo; delete fewer."));
    }
    return commit(std::move(change));
}

bool ListWriter::duplicateRows(const std::vector<RowBand>& bands)
{
    if (!begin())
        return false;
    ListChange change(*m_rows.list());
    for (const RowBand& band : bands) {
        if (!change.add(*m_rows.list(), {band.last + 1, 0, count(band)}, *m_rows.list(), band.first))
            return fail(tr("There is not enough memory to duplicate so many rows; select fewer."));
    }
    return commit(std::move(change));
}

bool ListWriter::moveRows(const std::vector<RowBand>& bands, int gap)
{
    if (!begin() || bands.empty())
        return false;
    const SoMField& list = *m_rows.list();
    const std::unique_ptr<SoMField> moved = list.makeSlice();
    for (const RowBand& band : bands) {
        if (gap > band.first && gap <= band.last)
            gap = band.first;
        moved->replaceValues(moved->getNum(), 0, list, band.first, count(band));
    }
    const bool isThere = bands.size() == 1 && (gap == bands[0].first || gap == bands[0].last + 1);
    if (isThere)
        return false;
    ListChange change(list);
    bool isInserted = false;
    const auto insert = [&] {
        isInserted = true;
        return change.add(list, {gap, 0, moved->getNum()}, *moved, 0);
    };
    for (const RowBand& band : bands) {
        if (!isInserted && gap <= band.first && !insert())
            return false;
        if (!change.add(list, {band.first, count(band), 0}))
            return false;
    }
    if (!isInserted && !insert())
        return false;
    return commit(std::move(change));
}

bool ListWriter::replaceRows(int start, int removed, const SoMField& by)
{
    if (!begin())
        return false;
    ListChange change(*m_rows.list());
    if (!change.add(*m_rows.list(), {start, removed, by.getNum()}, by, 0))
        return fail(tr("There is not enough memory for %1 rows; close other programs.").arg(by.getNum()));
    return commit(std::move(change));
}

} // namespace inspector
