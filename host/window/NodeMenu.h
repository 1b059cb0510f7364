// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace scopix
{

class BranchFiles;
class NodeEditing;
class SceneTreeView;

/// The menu of what can be done with the selected nodes, in the menu bar, over the tree, and over the 3D view
/// by the key for menus. Its keys act while the tree or the 3D view has the focus. GUI thread only.
class NodeMenu : public QObject
{
    Q_OBJECT

public:
    /// Fills `menu`, which owns it; the others must outlive it.
    NodeMenu(QMenu& menu, NodeEditing& editing, BranchFiles& files, SceneTreeView& tree, QWidget& view);

    /// Opens over these, too, and what is entered and dropped in the tree is done.
    void serve(SceneTreeView& tree, QWidget& view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* add(const QString& text, const QList<QKeySequence>& keys, std::function<void()> act);
    void moveTo(QMenu& submenu, QAction* act);
    void addAbove();
    void addStructure();
    void addClipboard();
    void addSight();
    void chooseAndAdd();
    void chooseAbove();
    void rename();
    void open(QWidget& over, const QPoint& place);
    SceneTreeView& treeInUse() const;

    QMenu& m_menu;
    NodeEditing& m_editing;
    BranchFiles& m_files;
    SceneTreeView& m_tree;
    QWidget& m_view;
    QList<QPointer<SceneTreeView>> m_trees; // the first is m_tree
};

} // namespace scopix
