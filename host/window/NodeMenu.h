// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QObject>

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
    void open(const QPoint& place);

    QMenu& m_menu;
    NodeEditing& m_editing;
    BranchFiles& m_files;
    SceneTreeView& m_tree;
    QWidget& m_view;
};

} // namespace scopix
