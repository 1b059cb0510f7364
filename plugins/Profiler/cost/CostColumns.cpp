// SPDX-License-Identifier: MIT
#include "cost/CostColumns.h"

#include <QCoreApplication>

#include <cmath>
#include <iterator>

namespace profiler
{

namespace
{

/// One column.
struct Row {
    const char* key;
    const char* caption;
    bool isShownAtFirst;
    bool isMeasured; // not known of branches that were too small to be drawn alone
    double (*value)(const SoBranchCost& branch);
};

double thousandths(double value)
{
    return std::round(value * 1000) / 1000;
}

const Row Rows[] = {
    {"cost.time", QT_TRANSLATE_NOOP("CostColumns", "Time, ms"), true, true,
     [](const SoBranchCost& branch) { return thousandths(branch.getTime()); }},
    {"cost.spread", QT_TRANSLATE_NOOP("CostColumns", "±, ms"), false, true,
     [](const SoBranchCost& branch) { return thousandths(branch.spread); }},
    {"cost.triangles", QT_TRANSLATE_NOOP("CostColumns", "Drawn triangles"), false, false,
     [](const SoBranchCost& branch) { return static_cast<double>(branch.triangles); }},
    {"cost.draws", QT_TRANSLATE_NOOP("CostColumns", "Draw calls"), false, true,
     [](const SoBranchCost& branch) { return static_cast<double>(branch.drawCalls); }},
    {"cost.pixels", QT_TRANSLATE_NOOP("CostColumns", "Pixels"), true, true,
     [](const SoBranchCost& branch) { return static_cast<double>(branch.pixels); }},
    {"cost.memory", QT_TRANSLATE_NOOP("CostColumns", "OpenGL memory, kB"), false, false,
     [](const SoBranchCost& branch) {
         return std::round(static_cast<double>(branch.meshBytes + branch.pictureBytes) / 1000);
     }},
};

const Row& row(int column)
{
    return Rows[column];
}

} // namespace

void CostColumns::show(const SoCosts& costs)
{
    m_branches.clear();
    for (const SoBranchCost& branch : costs.branches)
        m_branches[branch.node.get()] = &branch;
    SpxTreeColumns* tree = SpxTreeColumns::getInstance();
    if (!tree)
        return;
    if (m_branches.empty())
        return tree->removeColumns(this);
    tree->addColumns(this);
    tree->updateColumns(this);
}

int CostColumns::getNumColumns() const
{
    return static_cast<int>(std::size(Rows));
}

QString CostColumns::getColumnKey(int column) const
{
    return QString::fromLatin1(row(column).key);
}

QString CostColumns::getColumnCaption(int column) const
{
    return QCoreApplication::translate("CostColumns", row(column).caption);
}

bool CostColumns::isColumnShownAtFirst(int column) const
{
    return row(column).isShownAtFirst;
}

QVariant CostColumns::getColumnValue(int column, const SoNode& node) const
{
    const auto found = m_branches.find(&node);
    const bool isKnown = found != m_branches.end() && (found->second->isMeasured || !row(column).isMeasured);
    return isKnown ? QVariant(row(column).value(*found->second)) : QVariant();
}

} // namespace profiler
