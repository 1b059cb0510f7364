// SPDX-License-Identifier: MIT
#include "SpxFlowLayout.h"

#include <QWidget>

#include <algorithm>

namespace
{

using Line = std::vector<QLayoutItem*>;

int widthOf(const QLayoutItem& item, int most)
{
    return std::max(item.minimumSize().width(), std::min(item.sizeHint().width(), most));
}

int widthOf(const Line& line, int most, int space)
{
    int width = -space;
    for (const QLayoutItem* item : line)
        width += widthOf(*item, most) + space;
    return width;
}

int heightOf(const Line& line)
{
    int height = 0;
    for (const QLayoutItem* item : line)
        height = std::max(height, item->sizeHint().height());
    return height;
}

bool expands(const QLayoutItem* item)
{
    return item->expandingDirections().testFlag(Qt::Horizontal);
}

void placeLine(const Line& line, const QRect& area, int space, bool isRightToLeft)
{
    const auto takers = static_cast<int>(std::count_if(line.begin(), line.end(), expands));
    const int more = takers > 0 ? (area.width() - widthOf(line, area.width(), space)) / takers : 0;
    int x = area.x();
    for (QLayoutItem* item : line) {
        const int width = widthOf(*item, area.width()) + (expands(item) ? std::max(0, more) : 0);
        const int left = isRightToLeft ? area.x() + area.right() - x - width + 1 : x;
        item->setGeometry({left, area.y(), width, area.height()});
        x += width + space;
    }
}

} // namespace

SpxFlowLayout::SpxFlowLayout(QWidget* parent)
    : QLayout(parent)
{
    setSpacing(2);
}

SpxFlowLayout::~SpxFlowLayout() = default;

void SpxFlowLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

QLayoutItem* SpxFlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* SpxFlowLayout::takeAt(int index)
{
    if (!itemAt(index))
        return nullptr;
    const auto place = m_items.begin() + index;
    QLayoutItem* taken = place->release();
    m_items.erase(place);
    return taken;
}

int SpxFlowLayout::heightForWidth(int width) const
{
    return place({0, 0, width, 0}, false);
}

QSize SpxFlowLayout::sizeHint() const
{
    Line all;
    for (const auto& item : m_items) {
        if (!item->isEmpty())
            all.push_back(item.get());
    }
    const QMargins margins = contentsMargins();
    return {std::max(0, widthOf(all, QLAYOUTSIZE_MAX, spacing())) + margins.left() + margins.right(),
            heightOf(all) + margins.top() + margins.bottom()};
}

QSize SpxFlowLayout::minimumSize() const
{
    QSize least;
    for (const auto& item : m_items) {
        if (!item->isEmpty())
            least = least.expandedTo(item->minimumSize());
    }
    const QMargins margins = contentsMargins();
    return least + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void SpxFlowLayout::setGeometry(const QRect& area)
{
    QLayout::setGeometry(area);
    place(area, true);
}

std::vector<Line> SpxFlowLayout::linesIn(int width) const
{
    std::vector<Line> lines;
    int left = -1;
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        const int needed = widthOf(*item, width);
        if (lines.empty() || left < needed) {
            lines.emplace_back();
            left = width;
        }
        lines.back().push_back(item.get());
        left -= needed + spacing();
    }
    return lines;
}

// Gives the height that all lines need.
int SpxFlowLayout::place(const QRect& area, bool moves) const
{
    const QMargins margins = contentsMargins();
    const QRect inner = area.marginsRemoved(margins);
    const bool isRightToLeft = parentWidget() && parentWidget()->isRightToLeft();
    int y = inner.y();
    for (const Line& line : linesIn(std::max(1, inner.width()))) {
        const int height = heightOf(line);
        if (moves)
            placeLine(line, {inner.x(), y, inner.width(), height}, spacing(), isRightToLeft);
        y += height + spacing();
    }
    return std::max(0, y - inner.y() - spacing()) + margins.top() + margins.bottom();
}
