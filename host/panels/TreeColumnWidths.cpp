// SPDX-License-Identifier: MIT
#include "panels/TreeColumnWidths.h"

#include "panels/SceneTreeView.h"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

namespace scopix
{

namespace
{

// In letters.
constexpr int FigureLetters = 12;
constexpr int LeastNameLetters = 22; // with the icons, and where it stands deep in the scene
constexpr int LeastTypeLetters = 14;

constexpr int LeastTypePercent = 30;
constexpr double LeastShare = 0.1;

} // namespace

TreeColumnWidths::TreeColumnWidths(SceneTreeView& tree)
    : QObject(&tree)
    , m_tree(tree)
{
    connect(tree.header(), &QHeaderView::sectionResized, this,
            [this](int column, int /*before*/, int width) { resized(column, width); });
    // Many rows may be unfolded at once.
    m_later.setSingleShot(true);
    m_later.setInterval(0);
    connect(&m_later, &QTimer::timeout, this, &TreeColumnWidths::fit);
    connect(&tree, &QTreeView::expanded, &m_later, qOverload<>(&QTimer::start));
    connect(&tree.getModel(), &QAbstractItemModel::modelReset, &m_later, qOverload<>(&QTimer::start));
}

// The header itself gives the last one what is left.
void TreeColumnWidths::fit()
{
    const QScopedValueRollback<bool> fitting(m_isFitting, true);
    QHeaderView& header = *m_tree.header();
    int left = m_tree.viewport()->width();
    for (int column = SceneTreeModel::TrianglesColumn; column < m_tree.getModel().columnCount(); ++column) {
        if (m_tree.isColumnHidden(column))
            continue;
        header.resizeSection(column, widthOf(column));
        left -= widthOf(column);
    }
    // With less, the types are out of sight at the right, unless the user wants them there.
    const int letter = m_tree.fontMetrics().averageCharWidth();
    const int leastName = chosenShare() > 0 ? LeastTypeLetters : LeastNameLetters;
    const bool fits = left >= (leastName + LeastTypeLetters) * letter;
    const int type = fits ? widthOfType(left) : LeastTypeLetters * letter;
    header.resizeSection(SceneTreeModel::NameColumn,
                         fits ? left - type : std::max(left, LeastNameLetters * letter));
    header.resizeSection(SceneTreeModel::TypeColumn, type);
}

void TreeColumnWidths::fitAfter(const std::function<void()>& change)
{
    const QScopedValueRollback<bool> fitting(m_isFitting, true);
    change();
    fit();
}

int TreeColumnWidths::widthOf(int column) const
{
    const int chosen = m_chosen.value(m_tree.getModel().columnKey(column)).toInt();
    return chosen > 0 ? chosen : FigureLetters * m_tree.fontMetrics().averageCharWidth();
}

double TreeColumnWidths::chosenShare() const
{
    return m_chosen.value(m_tree.getModel().columnKey(SceneTreeModel::NameColumn)).toDouble();
}

int TreeColumnWidths::widthOfType(int both) const
{
    if (m_tree.isColumnHidden(SceneTreeModel::TypeColumn))
        return 0;
    const double share = chosenShare();
    if (share > 0)
        return both - static_cast<int>(both * std::clamp(share, LeastShare, 1 - LeastShare));
    // Of the rows in sight. Names come first, as long as something of the types is left.
    const int wanted = m_tree.wantedWidth(SceneTreeModel::TypeColumn);
    const int left = both - m_tree.wantedWidth(SceneTreeModel::NameColumn);
    return std::clamp(left, std::min(wanted, both * LeastTypePercent / 100), wanted);
}

void TreeColumnWidths::setChosen(const QVariantMap& chosen)
{
    m_chosen = chosen;
    fit();
}

bool TreeColumnWidths::isLast(int column) const
{
    int last = m_tree.getModel().columnCount() - 1;
    while (last > column && m_tree.isColumnHidden(last))
        --last;
    return last == column;
}

void TreeColumnWidths::resized(int column, int width)
{
    if (m_isFitting || width == 0 || isLast(column))
        return;
    const SceneTreeModel& model = m_tree.getModel();
    if (column >= SceneTreeModel::TrianglesColumn) {
        m_chosen[model.columnKey(column)] = width;
    } else {
        const int name = m_tree.columnWidth(SceneTreeModel::NameColumn);
        // Where the type is the last one, it has what is left by the name.
        const int both = isLast(SceneTreeModel::TypeColumn)
                             ? m_tree.viewport()->width()
                             : name + m_tree.columnWidth(SceneTreeModel::TypeColumn);
        m_chosen[model.columnKey(SceneTreeModel::NameColumn)] = double(name) / std::max(1, both);
    }
    emit chosen();
}

} // namespace scopix
