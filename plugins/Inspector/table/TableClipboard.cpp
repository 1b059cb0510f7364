// SPDX-License-Identifier: MIT
#include "table/TableClipboard.h"

#include "table/PieceWork.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <unordered_map>

namespace inspector
{

namespace
{

constexpr std::int64_t MostCopied = 20'000'000; // cells; their text has to fit into memory several times
constexpr int RowsAtOnce = 2048;
constexpr int CharactersAtOnce = 1 << 16;

std::uint32_t columnsFrom(int first, int count)
{
    return std::uint32_t(((std::uint64_t{1} << count) - 1) << first);
}

} // namespace

TableClipboard::TableClipboard(TableSession& session)
    : QObject(&session)
    , m_session(session)
{
}

bool TableClipboard::copy()
{
    const std::vector<RowBand> bands = m_session.view.selection().bands();
    if (!m_session.list() || bands.empty())
        return false;
    if (m_session.view.selection().cellCount() > MostCopied) {
        say(tr("So many cells do not fit into the clipboard; write them to a file with “Write CSV…”."));
        return false;
    }
    std::uint32_t columns = 0;
    int total = 0;
    for (const RowBand& band : bands) {
        columns |= band.columns;
        total += int(band.rowCount());
    }
    QString text;
    const auto appendRow = [&](const RowBand& band, int row) {
        bool isFirst = true;
        for (int column = 0; column < m_session.rows().columnCount(); ++column) {
            if ((columns >> column & 1U) == 0)
                continue;
            if (!std::exchange(isFirst, false))
                text += '\t';
            if (band.has(column) && m_session.rows().isThere(row))
                BlockText::appendCell(text, m_session.rows().text(row, column), '\t');
        }
        text += '\n';
    };
    auto band = bands.begin();
    int inBand = 0;
    int done = 0;
    const bool isCopied = PieceWork::run(&m_session.view, tr("Copying %1 rows…").arg(total), [&] {
        for (int i = 0; i < RowsAtOnce && done < total; ++i, ++done) {
            appendRow(*band, band->first + inBand);
            if (++inBand == band->rowCount()) {
                ++band;
                inBand = 0;
            }
        }
        return PieceWork::Progress{done, total, !m_session.list()};
    });
    if (!isCopied)
        return false;
    QGuiApplication::clipboard()->setText(text);
    return true;
}

// A text may be large: it is taken apart in pieces. False where that is cancelled.
bool TableClipboard::parse(const QString& text, BlockText::Rows& block)
{
    BlockText::Reader reader('\t', [&block](const QStringList& row) {
        block.push_back(row);
        return true;
    });
    int at = 0;
    const bool isParsed = PieceWork::run(&m_session.view, tr("Reading the clipboard…"), [&] {
        reader.feed(text.mid(at, CharactersAtOnce));
        at = std::min(at + CharactersAtOnce, text.size());
        return PieceWork::Progress{at, text.size(), !m_session.list()};
    });
    reader.finish();
    return isParsed;
}

bool TableClipboard::readBlock(BlockText::Rows& block)
{
    if (!parse(QGuiApplication::clipboard()->text(), block))
        return false;
    if (block.empty()) {
        say(tr("Nothing was pasted, since the clipboard holds no text; copy cells or text first."));
        return false;
    }
    if (!splitWholeValues(block))
        return false;
    std::size_t columns = 0;
    for (const QStringList& row : block)
        columns = std::max(columns, std::size_t(row.size()));
    for (QStringList& row : block) {
        while (std::size_t(row.size()) < columns)
            row.append(QString());
    }
    return true;
}

// Values copied as text stand in brackets, with a comma between them and blanks between their numbers. False
// where that is cancelled.
bool TableClipboard::splitWholeValues(BlockText::Rows& block)
{
    const int columns = m_session.rows().columnCount();
    const auto isOneCell = [](const QStringList& row) { return row.size() == 1; };
    if (columns == 1 || !m_session.access().hasNumbers() ||
        !std::all_of(block.begin(), block.end(), isOneCell))
        return true;
    BlockText::Rows values;
    bool areWhole = true;
    const auto addValue = [&](const QString& value) {
        if (value.trimmed().isEmpty())
            return;
        values.push_back(value.simplified().split(' '));
        areWhole = areWhole && values.back().size() == columns;
    };
    std::size_t at = 0;
    const bool isSplit = PieceWork::run(&m_session.view, tr("Reading the clipboard…"), [&] {
        for (int i = 0; i < RowsAtOnce && at < block.size() && areWhole; ++i, ++at) {
            for (const QString& value : QString(block[at].front()).remove('[').remove(']').split(','))
                addValue(value);
        }
        const qint64 done = areWhole ? qint64(at) : qint64(block.size());
        return PieceWork::Progress{done, qint64(block.size()), !m_session.list()};
    });
    if (isSplit && !values.empty() && areWhole)
        block = std::move(values);
    return isSplit;
}

bool TableClipboard::findTarget(int blockRows, int blockColumns, Target& target)
{
    const std::vector<CellRange>& ranges = m_session.view.selection().ranges();
    const int rows = m_session.rows().count();
    const CellRange selected = ranges.empty() ? CellRange{rows, 0, rows, 0} : ranges.back();
    const int height = selected.bottom - selected.top + 1;
    const int width = selected.right - selected.left + 1;
    target.cells = selected;
    if (height % blockRows != 0 || height == 1)
        target.cells.bottom = selected.top + blockRows - 1;
    if (width % blockColumns != 0 || width == 1)
        target.cells.right = selected.left + blockColumns - 1;
    if (target.cells.right >= m_session.rows().columnCount()) {
        say(tr("The block was not pasted, since it has %1 columns and only %2 are left from there on; select "
               "a "
               "column further left.")
                .arg(blockColumns)
                .arg(m_session.rows().columnCount() - selected.left));
        return false;
    }
    target.growth = std::max(target.cells.bottom + 1 - rows, 0);
    if (target.growth > 0 && !m_session.rows().order().isNatural()) {
        say(tr(
            "The block was not pasted, since it is longer than the rows that are shown; show all rows in the "
            "list's order first."));
        return false;
    }
    return true;
}

void TableClipboard::paste()
{
    BlockText::Rows block;
    Target target;
    say({});
    if (!readBlock(block) || !findTarget(int(block.size()), block.front().size(), target))
        return;
    const int rows = m_session.rows().count();
    const std::uint32_t columns = columnsFrom(target.cells.left, target.cells.right - target.cells.left + 1);
    std::vector<RowBand> bands;
    if (target.cells.top < rows)
        bands = m_session.rows().elementsOf(
            {{target.cells.top, std::min(target.cells.bottom, rows - 1), columns}});
    std::unordered_map<int, int> rowOf; // of elements in another order
    if (!m_session.rows().order().isNatural()) {
        for (int row = target.cells.top; row <= std::min(target.cells.bottom, rows - 1); ++row)
            rowOf[m_session.rows().elementOf(row)] = row;
    }
    int failedRow = 0;
    int failedColumn = 0;
    const auto write = [&](SoMField& values, int at, int element, int column) {
        if (column < target.cells.left || column > target.cells.right)
            return true; // of an added row
        const int row = rowOf.empty() ? element : rowOf[element];
        failedRow = (row - target.cells.top) % int(block.size());
        failedColumn = (column - target.cells.left) % block.front().size();
        const QString& text = block[std::size_t(failedRow)][failedColumn];
        return m_session.access().setText(values, at, column, text);
    };
    if (!m_session.report(m_session.writer.writeCells(bands, write, target.growth))) {
        if (m_session.writer.failure().isEmpty())
            sayNoValue(block, failedRow, failedColumn);
        return;
    }
    m_session.view.refresh();
    TableSelection selection;
    selection.selectRange(target.cells, {target.cells.top, target.cells.left});
    m_session.view.setSelection(selection);
}

void TableClipboard::pasteRows()
{
    BlockText::Rows block;
    say({});
    if (!readBlock(block))
        return;
    if (!m_session.rows().order().isNatural() || block.front().size() != m_session.rows().columnCount()) {
        say(tr("The rows were not inserted, since only whole rows of %1 columns can be, into a list in its "
               "own "
               "order; paste them over cells instead.")
                .arg(m_session.rows().columnCount()));
        return;
    }
    const std::unique_ptr<SoMField> rows = m_session.list()->makeSlice();
    const int total = int(block.size());
    rows->setNum(total);
    int row = 0;
    int column = 0;
    bool isGood = true;
    const auto fillRow = [&] {
        for (column = 0; column < block.front().size() && isGood; ++column)
            isGood = m_session.access().setText(*rows, row, column, block[std::size_t(row)][column]);
        row += isGood ? 1 : 0;
    };
    const bool isFilled = PieceWork::run(&m_session.view, tr("Changing %1 rows…").arg(total), [&] {
        for (int i = 0; i < RowsAtOnce && row < total && isGood; ++i)
            fillRow();
        return PieceWork::Progress{row, total, !isGood || !m_session.list()};
    });
    if (!isGood)
        return sayNoValue(block, row, column - 1);
    if (!isFilled)
        return;
    const int first = std::max(m_session.view.selection().current().row, 0);
    if (!m_session.report(m_session.writer.replaceRows(first, 0, *rows)))
        return;
    m_session.view.refresh();
    TableSelection selection;
    selection.selectRows(first, first + rows->getNum() - 1, m_session.rows().columnCount());
    m_session.view.setSelection(selection);
}

void TableClipboard::sayNoValue(const BlockText::Rows& block, int row, int column)
{
    say(tr("Nothing was pasted, since “%1” in row %2, column %3 of the copied block is no value that this "
           "list "
           "can hold; correct it where it was copied.")
            .arg(block[std::size_t(row)][column].left(60))
            .arg(row + 1)
            .arg(column + 1));
}

} // namespace inspector
