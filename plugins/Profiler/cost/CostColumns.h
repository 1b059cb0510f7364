// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxTreeColumns.h>
#include <xsg/costs/SoCosts.h>

#include <unordered_map>

namespace profiler
{

/// Costs as columns of the scene tree, as long as there are some. GUI thread only.
class CostColumns : public SpxTreeColumnProvider
{
public:
    /// They have to outlive what is shown; none takes the columns out.
    void show(const SoCosts& costs);

    int getNumColumns() const override;
    QString getColumnKey(int column) const override;
    QString getColumnCaption(int column) const override;
    bool isColumnShownAtFirst(int column) const override;
    QVariant getColumnValue(int column, const SoNode& node) const override;

private:
    std::unordered_map<const SoNode*, const SoBranchCost*> m_branches;
};

} // namespace profiler
