// SPDX-License-Identifier: MIT
#include "table/TableOrder.h"

#include "table/CellFormula.h"
#include "table/CellNumber.h"
#include "table/PieceWork.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace inspector
{

namespace
{

constexpr int RowsAtOnce = 8192;
constexpr int MostKeys = 10'000'000;

std::vector<int> elementsOf(const std::vector<RowBand>& bands)
{
    std::vector<int> all;
    for (const RowBand& band : bands) {
        for (int element = band.first; element <= band.last; ++element)
            all.push_back(element);
    }
    return all;
}

std::vector<int> allElements(const SoMField& list)
{
    std::vector<int> all(std::size_t(list.getNum()));
    std::iota(all.begin(), all.end(), 0);
    return all;
}

} // namespace

TableOrder::TableOrder(TableSession& session)
    : QObject(&session)
    , m_session(session)
{
}

// NaN comes last either way. Numbers are compared by a copy, which is quicker than reaching for them, unless
// it would be too large.
PieceSort::Less TableOrder::lessOf(int column, bool isDescending, std::vector<double>& keys)
{
    const SoMField* list = m_session.list();
    const ListAccess* access = &m_session.access();
    if (!access->hasNumbers()) {
        if (isDescending)
            return [=](int a, int b) { return access->isLess(*list, b, a, column); };
        return [=](int a, int b) { return access->isLess(*list, a, b, column); };
    }
    if (list->getNum() <= MostKeys) {
        keys.resize(std::size_t(list->getNum()));
        access->readNumbers(*list, 0, column, list->getNum(), keys.data());
    }
    const double* key = keys.empty() ? nullptr : keys.data();
    return [=](int left, int right) {
        const double a = key ? key[left] : access->number(*list, left, column);
        const double b = key ? key[right] : access->number(*list, right, column);
        if (std::isnan(a) || std::isnan(b))
            return !std::isnan(a);
        return isDescending ? b < a : a < b;
    };
}

bool TableOrder::sorted(std::vector<int>& elements, const PieceSort::Less& less, const QString& what)
{
    const SoMField* list = m_session.list();
    const std::uint32_t version = list->getChangeCount();
    PieceSort sort(std::move(elements), less);
    const bool isDone = PieceWork::run(&m_session.view, what, [&]() -> PieceWork::Progress {
        if (m_session.list() != list || list->getChangeCount() != version)
            return {0, 1, true};
        sort.step(RowsAtOnce);
        return {qint64(sort.done()), qint64(sort.total())};
    });
    elements = sort.take();
    return isDone;
}

void TableOrder::apply(RowOrder order, int column, bool isDescending)
{
    m_session.view.setOrder(std::move(order), column, isDescending);
    emit orderChanged();
}

void TableOrder::sort(bool isDescending)
{
    sortBy(m_session.view.selection().current().column, isDescending);
}

void TableOrder::sortBy(int column, bool isDescending)
{
    if (!m_session.list() || column < 0)
        return;
    const RowOrder& shown = m_session.rows().order();
    std::vector<int> elements = shown.isNatural() ? allElements(*m_session.list()) : shown.elements();
    std::vector<double> keys;
    const auto less = lessOf(column, isDescending, keys);
    if (!sorted(elements, less, tr("Sorting the rows…")))
        return;
    m_last = [this, column, isDescending] { sortBy(column, isDescending); };
    apply(RowOrder(std::move(elements), false), column, isDescending);
}

void TableOrder::sortValues(bool isDescending)
{
    const int column = m_session.view.selection().current().column;
    if (!m_session.list() || column < 0)
        return;
    const SoMField& list = *m_session.list();
    std::vector<RowBand> bands = m_session.selectedElements();
    if (bands.size() != 1 || bands.front().rowCount() < 2)
        bands.assign(1, {0, list.getNum() - 1, 1});
    std::vector<int> elements = elementsOf(bands);
    std::vector<double> keys;
    const auto less = lessOf(column, isDescending, keys);
    if (!sorted(elements, less, tr("Sorting the values…")))
        return;
    const std::unique_ptr<SoMField> values = list.makeSlice();
    int done = 0;
    const int total = int(elements.size());
    const std::uint32_t version = list.getChangeCount();
    const bool isDone =
        PieceWork::run(&m_session.view, tr("Sorting the values…"), [&]() -> PieceWork::Progress {
            if (m_session.list() != &list || list.getChangeCount() != version)
                return {0, 1, true};
            for (const int end = std::min(total - done, RowsAtOnce) + done; done < end; ++done)
                values->replaceValues(done, 0, list, elements[std::size_t(done)], 1);
            return {done, total};
        });
    if (isDone && values->getNum() == total && !std::is_sorted(elements.begin(), elements.end()))
        m_session.report(m_session.writer.replaceRows(bands.front().first, total, *values));
}

bool TableOrder::collect(const QString& what, const std::function<bool(int)>& isShown,
                         std::vector<int>& elements)
{
    const SoMField* list = m_session.list();
    const int total = list->getNum();
    int at = 0;
    return PieceWork::run(&m_session.view, what, [&]() -> PieceWork::Progress {
        if (m_session.list() != list || list->getNum() != total)
            return {0, 1, true};
        for (const int end = std::min(total - at, RowsAtOnce) + at; at < end; ++at) {
            if (isShown(at))
                elements.push_back(at);
        }
        return {at, total};
    });
}

bool TableOrder::filter(const QString& condition)
{
    emit m_session.said({});
    if (!m_session.list())
        return false;
    if (condition.trimmed().isEmpty()) {
        showAll();
        return true;
    }
    if (condition.trimmed().compare(QLatin1String("duplicates"), Qt::CaseInsensitive) == 0) {
        showDuplicates();
        return true;
    }
    RowCondition wanted(condition, *m_session.list(), m_session.access());
    if (!wanted.isValid()) {
        emit m_session.said(wanted.error());
        return false;
    }
    std::vector<int> elements;
    const auto isShown = [&](int element) { return wanted.holds(*m_session.list(), element); };
    if (!collect(tr("Filtering the rows…"), isShown, elements))
        return false;
    m_last = [this, condition] { filter(condition); };
    apply(RowOrder(std::move(elements), true));
    return true;
}

void TableOrder::showDuplicates()
{
    if (!m_session.list())
        return;
    const SoMField* list = m_session.list();
    const ListAccess& access = m_session.access();
    const int columns = access.columnCount();
    const auto less = [&](int a, int b) {
        for (int column = 0; column < columns; ++column) {
            if (access.isLess(*list, a, b, column))
                return true;
            if (access.isLess(*list, b, a, column))
                return false;
        }
        return false;
    };
    std::vector<int> elements = allElements(*list);
    if (!sorted(elements, less, tr("Searching for duplicates…")))
        return;
    std::vector<bool> isTwice(elements.size());
    for (std::size_t i = 0; i + 1 < elements.size(); ++i) {
        if (!less(elements[i], elements[i + 1]))
            isTwice[std::size_t(elements[i])] = isTwice[std::size_t(elements[i + 1])] = true;
    }
    std::vector<int> shown;
    if (!collect(
            tr("Searching for duplicates…"), [&](int at) { return isTwice[std::size_t(at)]; }, shown))
        return;
    m_last = [this] { showDuplicates(); };
    apply(RowOrder(std::move(shown), true));
}

void TableOrder::showAll()
{
    m_last = nullptr;
    if (!m_session.rows().order().isNatural())
        apply(RowOrder());
}

void TableOrder::reapply()
{
    if (!m_last || !m_session.list())
        return;
    const auto again = m_last;
    m_session.rows().setOrder(RowOrder());
    again();
}

// A number is found by its value, anything else by a part of its text.
bool TableOrder::isFound(int row, int column, const double* number) const
{
    if (!m_session.rows().isThere(row))
        return false;
    if (!number)
        return m_session.rows().text(row, column).contains(m_sought, Qt::CaseInsensitive);
    const double value =
        m_session.access().number(*m_session.list(), m_session.rows().elementOf(row), column);
    return value == *number || float(value) == float(*number) || (std::isnan(value) && std::isnan(*number));
}

bool TableOrder::find(const QString& text)
{
    emit m_session.said({});
    m_sought = text.trimmed();
    if (!m_session.list() || m_sought.isEmpty() || m_session.rows().count() == 0)
        return false;
    double number = 0;
    const bool isNumber =
        m_session.access().kind() == ListAccess::Kind::Number && CellNumber::read(m_sought, number);
    const qint64 columns = m_session.rows().columnCount();
    const qint64 total = m_session.rows().count() * columns;
    const TableCell current = m_session.view.selection().current();
    qint64 at = current.isValid() ? current.row * columns + current.column : -1;
    qint64 done = 0;
    TableCell found;
    PieceWork::run(&m_session.view, tr("Searching…"), [&]() -> PieceWork::Progress {
        if (!m_session.list() || m_session.rows().count() * columns != total)
            return {0, 1, true};
        for (const qint64 end = std::min<qint64>(done + RowsAtOnce, total); done < end; ++done) {
            at = (at + 1) % total;
            const TableCell cell{int(at / columns), int(at % columns)};
            if (isFound(cell.row, cell.column, isNumber ? &number : nullptr)) {
                found = cell;
                return {total, total};
            }
        }
        return {done, total};
    });
    if (found.isValid())
        m_session.view.goTo(found);
    else
        emit m_session.said(tr("“%1” is in no cell that is shown.").arg(m_sought));
    return found.isValid();
}

bool TableOrder::goToRow(const QString& text)
{
    emit m_session.said({});
    int element = -1;
    const bool isNumber = CellNumber::read(text, element);
    const int row = isNumber && m_session.list() && element >= 0 && element < m_session.list()->getNum()
                        ? m_session.rows().rowOf(element)
                        : -1;
    if (row < 0) {
        emit m_session.said(tr("“%1” is no row that is shown; type a number from 0 to %2.")
                                .arg(text)
                                .arg(m_session.list() ? std::max(m_session.list()->getNum() - 1, 0) : 0));
        return false;
    }
    m_session.view.goTo({row, std::max(m_session.view.selection().current().column, 0)});
    return true;
}

} // namespace inspector
