// SPDX-License-Identifier: MIT
#include "cost/TreeMap.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace profiler
{

namespace
{

constexpr int Deepest = 12;
constexpr double Smallest = 4; // pixels
constexpr double Title = 14;

} // namespace

QString nameOf(const SoNode& node)
{
    const SbName name = node.getName();
    const SbName type = node.getTypeId().getName();
    return QString::fromLatin1(name.getLength() > 0 ? name.getString() : type.getString());
}

TreeMap::TreeMap(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("costMap"));
    setAccessibleName(tr("Costs as areas"));
    setFocusPolicy(Qt::StrongFocus);
}

void TreeMap::show(const SoCosts* costs, Figure figure)
{
    m_costs = costs;
    m_figure = figure;
    m_children.assign(costs->branches.size(), {});
    for (std::size_t i = 0; i < costs->branches.size(); ++i) {
        if (costs->branches[i].parent >= 0)
            m_children[static_cast<std::size_t>(costs->branches[i].parent)].push_back(static_cast<int>(i));
    }
    m_chosen = -1;
    arrange();
}

void TreeMap::arrange()
{
    m_areas.clear();
    if (m_costs && !m_costs->branches.empty())
        split(0, rect(), 0);
    update();
}

// Along the longer side, the largest first.
void TreeMap::split(int branch, QRectF place, int depth)
{
    m_areas.push_back({place, branch, depth});
    const QRectF inside = place.adjusted(1, depth < 3 && place.height() > 3 * Title ? Title : 1, -1, -1);
    if (depth >= Deepest || inside.width() < Smallest || inside.height() < Smallest)
        return;
    const auto sizeOf = [this](int i) { return m_figure(m_costs->branches[static_cast<std::size_t>(i)]); };
    std::vector<int> children = m_children[static_cast<std::size_t>(branch)];
    std::sort(children.begin(), children.end(), [&](int a, int b) { return sizeOf(a) > sizeOf(b); });
    double left = 0;
    for (const int child : children)
        left += std::max(0.0, sizeOf(child));
    const double own = std::max(left, sizeOf(branch));
    QRectF rest = inside;
    left = own;
    for (const int child : children) {
        const double size = sizeOf(child);
        if (size <= 0 || left <= 0 || rest.width() < Smallest || rest.height() < Smallest)
            break;
        QRectF part = rest;
        if (rest.width() >= rest.height()) {
            part.setWidth(rest.width() * size / left);
            rest.setLeft(part.right());
        } else {
            part.setHeight(rest.height() * size / left);
            rest.setTop(part.bottom());
        }
        left -= size;
        split(child, part, depth + 1);
    }
}

void TreeMap::choose(int branch)
{
    m_chosen = branch;
    update();
}

void TreeMap::resizeEvent(QResizeEvent* /*event*/)
{
    arrange();
}

void TreeMap::mousePressEvent(QMouseEvent* event)
{
    for (auto area = m_areas.rbegin(); area != m_areas.rend(); ++area) {
        if (area->place.contains(event->localPos()))
            return emit chosen(area->branch);
    }
}

void TreeMap::keyPressEvent(QKeyEvent* event)
{
    const int step = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down ? 1
                     : event->key() == Qt::Key_Left || event->key() == Qt::Key_Up  ? -1
                                                                                   : 0;
    if (step == 0 || m_areas.empty())
        return QWidget::keyPressEvent(event);
    const auto present = std::find_if(m_areas.begin(), m_areas.end(),
                                      [this](const Area& area) { return area.branch == m_chosen; });
    const auto place = present == m_areas.end() ? 0 : present - m_areas.begin() + step;
    const auto last = static_cast<std::ptrdiff_t>(m_areas.size()) - 1;
    emit chosen(m_areas[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(place, 0, last))].branch);
}

void TreeMap::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    for (const Area& area : m_areas) {
        const QColor ground = QColor::fromHsl((200 + 37 * area.depth) % 360, 90,
                                              isDark ? 60 + 6 * area.depth : 210 - 6 * area.depth);
        painter.fillRect(area.place, ground);
        painter.setPen(area.branch == m_chosen ? QPen(palette().color(QPalette::Highlight), 3)
                                               : QPen(palette().color(QPalette::Mid)));
        painter.drawRect(area.place.adjusted(0.5, 0.5, -0.5, -0.5));
        if (area.place.height() < Title || area.place.width() < 3 * Title)
            continue;
        painter.setPen(isDark ? Qt::white : Qt::black);
        const QString name = nameOf(*m_costs->branches[static_cast<std::size_t>(area.branch)].node);
        painter.drawText(
            area.place.adjusted(3, 0, -3, 0), Qt::AlignTop | Qt::AlignLeft,
            fontMetrics().elidedText(name, Qt::ElideRight, static_cast<int>(area.place.width()) - 6));
    }
}

} // namespace profiler
