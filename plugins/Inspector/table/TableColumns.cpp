// SPDX-License-Identifier: MIT
#include "table/TableColumns.h"

#include "table/TablePainter.h"

#include <QWidget>

#include <algorithm>

namespace inspector
{

void TableColumns::setWidth(int column, int width)
{
    m_userWidths[std::size_t(column)] = std::max(width, 2 * TablePainter::margin(m_area) + 4);
}

int TableColumns::leastWidth(int column) const
{
    const QFontMetrics metrics = m_area.fontMetrics();
    const bool isNumber = m_rows.list() && m_rows.access().kind() == ListAccess::Kind::Number;
    const int content =
        metrics.horizontalAdvance(isNumber ? QStringLiteral("-0.00") : QStringLiteral("FALSE"));
    const int heading = metrics.horizontalAdvance(m_rows.heading(column));
    return std::max(content, heading) + 2 * TablePainter::margin(m_area) + 1;
}

int TableColumns::fittingWidth(int column, int first, int last) const
{
    int width = leastWidth(column);
    for (int row = first; row <= last; ++row) {
        if (!m_rows.isThere(row))
            continue;
        const QString text = TablePainter::oneLine(m_rows.text(row, column));
        width = std::max(width,
                         m_area.fontMetrics().horizontalAdvance(text) + 2 * TablePainter::margin(m_area) + 1);
    }
    return width;
}

int TableColumns::numberWidth(int rowHeight) const
{
    const SoMField* list = m_rows.list();
    const QString longest = QString(QString::number(list ? list->getNum() : 0).size(), '8');
    const bool hasSwatch = m_rows.isThere(0) && m_rows.swatch(0).isValid();
    QFont bold = m_area.font();
    bold.setBold(true);
    return QFontMetrics(bold).horizontalAdvance(longest) + 4 * TablePainter::margin(m_area) +
           (hasSwatch ? rowHeight : 0);
}

// What is left of the room goes to the columns that the user has not sized.
std::vector<int> TableColumns::widths(int room, int& missing) const
{
    std::vector<int> widths;
    int flexible = 0;
    for (int column = 0; column < m_rows.columnCount(); ++column) {
        const int own = m_userWidths[std::size_t(column)];
        widths.push_back(own > 0 ? own : leastWidth(column));
        room -= widths.back();
        flexible += own == 0;
    }
    for (std::size_t column = 0; column < widths.size() && room > 0; ++column) {
        if (m_userWidths[column] > 0)
            continue;
        const int share = room / flexible--;
        widths[column] += share;
        room -= share;
    }
    missing = std::max(-room, 0);
    return widths;
}

} // namespace inspector
