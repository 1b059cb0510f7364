// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace scopix
{

class HostServices;
class SceneTreeModel;
class SceneTreeView;
class SceneView;

/// Joins the selection with a tree and a view: what is selected in the tree is selected everywhere, and what
/// is selected anywhere shows in both. GUI thread only.
class SelectionLink : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it.
    SelectionLink(HostServices& services, SceneTreeView& tree, SceneView& view);

private:
    void tell();
    void show();
    void showInTree();
    void follow(SceneTreeModel& model);

    HostServices& m_services;
    SceneTreeView& m_tree;
    SceneView& m_view;
    bool m_isTelling = false;
    bool m_isFollowing = false;
};

} // namespace scopix
