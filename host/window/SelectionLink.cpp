// SPDX-License-Identifier: MIT
#include "window/SelectionLink.h"

#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "viewport/SceneView.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace scopix
{

SelectionLink::SelectionLink(HostServices& services, SceneTreeView& tree, SceneView& view)
    : m_services(services)
    , m_tree(tree)
    , m_view(view)
{
    connect(&m_tree, &SceneTreeView::nodeSelected, this, &SelectionLink::tell);
    connect(&m_services, &SpxServices::selectedNodeChanged, this, &SelectionLink::show);
    // The same node may be selected at another place.
    connect(&m_services, &HostServices::selectionChanged, this, &SelectionLink::show);
    show();
}

void SelectionLink::tell()
{
    if (m_isFollowing)
        return;
    const QScopedValueRollback<bool> telling(m_isTelling, true);
    m_services.selectPaths(m_tree.getSelectedPaths());
}

void SelectionLink::show()
{
    showInTree();
    // The highlight would cover the very look that the user tunes in a material.
    QList<const SoNode*> seen;
    for (SoFieldContainer* each : m_services.getSelectedNodes()) {
        auto* node = dynamic_cast<SoNode*>(each);
        if (node && (node->asGroup() || node->asShape()))
            seen.append(node);
    }
    m_view.setHighlight(seen);
}

// Rows that go take the tree's selection with them, which is no act of the user's.
void SelectionLink::follow(SceneTreeModel& model)
{
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    model.followNow();
}

// What was made just now has no row yet; while the tree itself tells, it may be changing its rows.
void SelectionLink::showInTree()
{
    const QList<SoPath> paths = m_services.getSelectedPaths();
    SceneTreeModel& model = m_tree.getModel();
    const auto isMissing = [&model](const SoPath& path) { return !model.indexOf(path).isValid(); };
    if (!m_isTelling && std::any_of(paths.begin(), paths.end(), isMissing))
        follow(model);
    m_tree.showPaths(paths);
}

} // namespace scopix
