// SPDX-License-Identifier: MIT
#include "window/NodeMenu.h"

#include "panels/NodeIcons.h"
#include "panels/SceneTreeView.h"
#include "panels/TypeChooser.h"
#include "text/NodeText.h"
#include "window/BranchFiles.h"
#include "window/NodeEditing.h"

#include <scopix/SpxContextMenus.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

namespace scopix
{

NodeMenu::NodeMenu(QMenu& menu, NodeEditing& editing, BranchFiles& files, SceneTreeView& tree, QWidget& view)
    : QObject(&menu)
    , m_menu(menu)
    , m_editing(editing)
    , m_files(files)
    , m_tree(tree)
    , m_view(view)
{
    add(tr("&Add…"), {Qt::SHIFT + Qt::Key_A}, [this] { chooseAndAdd(); });
    addAbove();
    add(tr("Re&name"), {Qt::Key_F2}, [this] { rename(); });
    m_menu.addSeparator();
    addClipboard();
    m_menu.addSeparator();
    addStructure();
    m_menu.addSeparator();
    addSight();
    m_menu.addSeparator();
    add(tr("Insert &File…"), {Qt::CTRL + Qt::Key_I}, [this] { m_files.askAndInsert(); });
    add(tr("Sa&ve Branch As…"), {QStringLiteral("Ctrl+U, B")}, [this] { m_files.askAndSave(); });
    serve(m_tree, m_view);
}

void NodeMenu::serve(SceneTreeView& tree, QWidget& view)
{
    m_trees.removeAll({});
    m_trees.append(&tree);
    tree.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&tree, &QWidget::customContextMenuRequested, this,
            [this, &tree](const QPoint& place) { open(*tree.viewport(), place); });
    view.installEventFilter(this);
    connect(&tree, &SceneTreeView::eyeClicked, this,
            [this](const SoPath& path) { m_editing.toggleHidden({path}); });
    m_editing.serve(tree);
}

// That of the window that the user works in.
SceneTreeView& NodeMenu::treeInUse() const
{
    for (const QPointer<SceneTreeView>& tree : m_trees)
        if (tree && tree->isActiveWindow())
            return *tree;
    return m_tree;
}

QAction* NodeMenu::add(const QString& text, const QList<QKeySequence>& keys, std::function<void()> act)
{
    QAction* action = m_menu.addAction(text, this, std::move(act));
    action->setShortcuts(keys);
    // Single letters and Ctrl+C mean something else elsewhere.
    action->setShortcutContext(Qt::WidgetShortcut);
    m_tree.addAction(action);
    m_view.addAction(action);
    return action;
}

void NodeMenu::moveTo(QMenu& submenu, QAction* act)
{
    m_menu.removeAction(act);
    submenu.addAction(act);
}

void NodeMenu::addAbove()
{
    QMenu* above = m_menu.addMenu(tr("Put A&bove"));
    const std::pair<SoType, const char*> types[] = {{SoTransform::getClassTypeId(), "Ctrl+U, T"},
                                                    {SoSeparator::getClassTypeId(), "Ctrl+U, S"},
                                                    {SoGroup::getClassTypeId(), "Ctrl+U, G"},
                                                    {SoSwitch::getClassTypeId(), "Ctrl+U, W"}};
    for (const auto& [type, key] : types) {
        QAction* act = add(tr("Put a %1 Above").arg(toQString(type.getName())), {QKeySequence(key)},
                           [this, type = type] { m_editing.insertAbove(type); });
        act->setIcon(nodeIcon(type, &m_tree));
        moveTo(*above, act);
    }
    moveTo(*above, add(tr("&Another…"), {QStringLiteral("Ctrl+U, A")}, [this] { chooseAbove(); }));
}

void NodeMenu::addClipboard()
{
    add(tr("Cu&t"), {QKeySequence::Cut}, [this] { m_editing.cut(); });
    add(tr("&Copy"), {QKeySequence::Copy}, [this] { m_editing.copy(); });
    add(tr("&Paste"), {QKeySequence::Paste}, [this] { m_editing.paste(); });
    add(tr("Paste as &Shared"), {Qt::CTRL + Qt::SHIFT + Qt::Key_V}, [this] { m_editing.pasteShared(); });
    add(tr("&Duplicate"), {Qt::CTRL + Qt::Key_D}, [this] { m_editing.duplicate(); });
    add(tr("D&elete"), {QKeySequence::Delete}, [this] { m_editing.remove(); });
}

void NodeMenu::addStructure()
{
    add(tr("&Group"), {Qt::CTRL + Qt::Key_G}, [this] { m_editing.group(); });
    add(tr("&Ungroup"), {Qt::CTRL + Qt::SHIFT + Qt::Key_G}, [this] { m_editing.ungroup(); });
    add(tr("Make Uni&que"), {QStringLiteral("Ctrl+U, U")}, [this] { m_editing.makeUnique(); });
    QMenu* move = m_menu.addMenu(tr("&Move"));
    const auto addMove = [&](const QString& text, Qt::Key key, std::function<void()> act) {
        moveTo(*move, add(text, {QKeySequence(Qt::ALT | key)}, std::move(act)));
    };
    addMove(tr("&Up"), Qt::Key_Up, [this] { m_editing.reorder(-1); });
    addMove(tr("&Down"), Qt::Key_Down, [this] { m_editing.reorder(1); });
    addMove(tr("&Out of Its Group"), Qt::Key_Left, [this] { m_editing.moveOut(); });
    addMove(tr("&Into the Group Before"), Qt::Key_Right, [this] { m_editing.moveIn(); });
}

void NodeMenu::addSight()
{
    add(tr("&Hide or Show"), {Qt::Key_H}, [this] { m_editing.toggleHidden(); });
    add(tr("Sho&w All"), {Qt::SHIFT + Qt::Key_H}, [this] { m_editing.showAll(); });
    add(tr("&Isolate"), {Qt::Key_Slash}, [this] { m_editing.toggleIsolated(); });
    add(tr("&Lock or Unlock"), {Qt::CTRL + Qt::Key_L}, [this] { m_editing.toggleLocked(); });
    add(tr("Make Hiding Pe&rmanent"), {QStringLiteral("Ctrl+U, H")}, [this] { m_editing.makePermanent(); });
}

void NodeMenu::chooseAndAdd()
{
    m_editing.askTypesToAdd([this](const std::vector<SoType>& types) {
        TypeChooser chooser(types, tr("Add a Node"), &treeInUse());
        if (chooser.exec() == QDialog::Accepted)
            m_editing.add(chooser.getChosen());
    });
}

void NodeMenu::chooseAbove()
{
    m_editing.askTypesToPutAbove([this](const std::vector<SoType>& types) {
        TypeChooser chooser(types, tr("Put a Node Above"), &treeInUse());
        if (chooser.exec() == QDialog::Accepted)
            m_editing.insertAbove(chooser.getChosen());
    });
}

void NodeMenu::rename()
{
    treeInUse().editName();
}

// The right button moves a view.
bool NodeMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu ||
        static_cast<QContextMenuEvent*>(event)->reason() != QContextMenuEvent::Keyboard)
        return QObject::eventFilter(watched, event);
    auto* view = static_cast<QWidget*>(watched);
    open(*view, view->rect().center());
    return true;
}

void NodeMenu::open(QWidget& over, const QPoint& place)
{
    QMenu menu(&over);
    menu.addActions(m_menu.actions());
    QList<SoFieldContainer*> nodes;
    for (const SoPath& path : m_editing.selected())
        nodes += path.getTail();
    SpxContextMenus* menus = SpxContextMenus::getInstance();
    if (menus && !nodes.isEmpty())
        menus->fillNodeMenu(menu, nodes);
    menu.exec(over.mapToGlobal(place));
}

} // namespace scopix
