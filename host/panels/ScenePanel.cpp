// SPDX-License-Identifier: MIT
#include "panels/ScenePanel.h"

#include "panels/FindBar.h"
#include "panels/SceneFinder.h"
#include "panels/SceneTreeModel.h"
#include "panels/SceneTreeView.h"

#include <xsg/nodes/groups/SoGroup.h>

#include <QVBoxLayout>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int FilterMs = 150; // while results come in
constexpr std::size_t MostUnfolded = 200;

// What was found, and all that it stands in.
SceneTreeModel::NodeSet withParents(const std::vector<SoRef<SoNode>>& found)
{
    SceneTreeModel::NodeSet nodes;
    std::vector<const SoNode*> pending;
    for (const auto& each : found)
        pending.push_back(each.get());
    while (!pending.empty()) {
        const SoNode* node = pending.back();
        pending.pop_back();
        if (nodes.insert(node).second)
            pending.insert(pending.end(), node->getParents().begin(), node->getParents().end());
    }
    return nodes;
}

} // namespace

ScenePanel::ScenePanel(QWidget* parent)
    : QWidget(parent)
    , m_finder(new SceneFinder(this))
    , m_bar(new FindBar(*m_finder))
    , m_tree(new SceneTreeView)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addWidget(m_tree, 1);
    m_filterSoon.setSingleShot(true);
    m_filterSoon.setInterval(FilterMs);
    m_tree->setMarked([this](const SoNode* node) { return m_finder->isFound(node); });
    connect(m_finder, &SceneFinder::foundChanged, this, &ScenePanel::foundChanged);
    connect(&m_filterSoon, &QTimer::timeout, this, &ScenePanel::filter);
    connect(m_bar, &FindBar::filterToggled, this, &ScenePanel::filter);
    connect(m_bar, &FindBar::firstFound, m_tree, &SceneTreeView::reveal);
    connect(m_bar, &FindBar::chosen, m_tree, &SceneTreeView::selectNode);
    connect(m_bar, &FindBar::left, m_tree, [this] { m_tree->setFocus(); });
}

void ScenePanel::setScene(SoNode* root)
{
    m_tree->setScene(root);
    m_finder->setRoot(root);
}

void ScenePanel::startFinding()
{
    m_bar->focusLine();
}

void ScenePanel::find(const QString& query)
{
    m_bar->setText(query);
}

void ScenePanel::foundChanged()
{
    m_tree->viewport()->update();
    if (m_bar->isFiltering() == m_tree->getModel().isShowingAll() || m_finder->isFinished())
        filter();
    else if (m_bar->isFiltering() && !m_filterSoon.isActive())
        m_filterSoon.start();
}

void ScenePanel::filter()
{
    m_filterSoon.stop();
    if (!m_bar->isFiltering())
        return m_tree->showAll();
    SceneTreeModel::NodeSet nodes = withParents(m_finder->getFound());
    if (m_tree->getModel().isShowingOnly(nodes))
        return; // a repeated search that found the same leaves the rows as the user has folded them
    m_tree->showOnly(std::move(nodes));
    expandFound();
}

void ScenePanel::expandFound()
{
    const auto& found = m_finder->getFound();
    for (std::size_t i = 0; i < std::min(found.size(), MostUnfolded); ++i)
        m_tree->unfoldTo(found[i].get());
}

} // namespace scopix
