// SPDX-License-Identifier: MIT
#include "panel/NodeMenu.h"

#include "fields/FieldText.h"
#include "fields/NodeValues.h"
#include "panel/FieldPanel.h"

#include <scopix/SpxContextMenus.h>
#include <scopix/SpxGuide.h>
#include <scopix/SpxNodeDefaults.h>
#include <scopix/SpxSceneServices.h>
#include <scopix/editing/SpxFieldEdit.h>
#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolTip>

#include <algorithm>

namespace inspector
{

namespace
{

void toClipboard(const QString& text)
{
    QApplication::clipboard()->setText(text);
}

QString typeOf(const SoFieldContainer& node)
{
    return SpxText::toQString(node.getTypeId().getName());
}

} // namespace

NodeMenu::NodeMenu(FieldPanel& panel, QCheckBox& onlyChanged)
    : QObject(&panel)
    , m_panel(panel)
{
    auto* only = new QAction(tr("Sho&w Only Changed"), &panel);
    only->setObjectName(QStringLiteral("onlyChangedAction"));
    only->setCheckable(true);
    connect(only, &QAction::toggled, &onlyChanged, &QCheckBox::setChecked);
    connect(&onlyChanged, &QCheckBox::toggled, only, &QAction::setChecked);
    panel.addAction(only);
    panel.installEventFilter(this);
}

SoFieldContainer* NodeMenu::node() const
{
    return m_panel.node();
}

// Rows take their own.
bool NodeMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu && node()) {
        open(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void NodeMenu::open(const QPoint& where)
{
    auto* menu = new QMenu(&m_panel);
    menu->setObjectName(QStringLiteral("nodeMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addCopies(*menu);
    menu->addSeparator();
    addChanges(*menu);
    menu->addSeparator();
    menu->addActions(m_panel.actions());
    addGuide(*menu);
    const std::vector<SoFieldContainer*> nodes = m_panel.nodes();
    if (SpxContextMenus* menus = SpxContextMenus::getInstance())
        menus->fillNodeMenu(*menu, {nodes.begin(), nodes.end()});
    menu->popup(where);
}

void NodeMenu::addCopies(QMenu& menu)
{
    const auto add = [&](const QString& title, QString (*textOf)(const SoFieldContainer&)) {
        menu.addAction(title, this, [this, textOf] {
            if (node())
                toClipboard(textOf(*node()));
        });
    };
    add(tr("&Copy Values"), valuesText);
    menu.addAction(tr("Paste &Values"), this, &NodeMenu::paste)
        ->setEnabled(!QApplication::clipboard()->text().isEmpty());
    add(tr("Cop&y Path"), pathOf);
    add(tr("Copy as C+&+"), cppText);
}

void NodeMenu::addChanges(QMenu& menu)
{
    const std::vector<SoFieldContainer*> nodes = m_panel.nodes();
    const auto isChanged = [](const SoFieldContainer* each) { return !changedFields(*each).empty(); };
    menu.addAction(tr("&Reset All to Defaults"), this, &NodeMenu::resetAll)
        ->setEnabled(std::any_of(nodes.begin(), nodes.end(), isChanged));
    if (SpxNodeDefaults::getInstance())
        menu.addAction(tr("Use as My Defaults for &New Nodes"), this, &NodeMenu::keepAsDefaults);
}

void NodeMenu::addGuide(QMenu& menu)
{
    if (!SpxGuide::getInstance())
        return;
    const QString type = typeOf(*node());
    menu.addAction(tr("&Find All of Type %1").arg(type), this,
                   [type] { SpxGuide::getInstance()->find(QStringLiteral("type:") + type); });
    menu.addAction(tr("&Help on %1").arg(type), this,
                   [type] { SpxGuide::getInstance()->showHelp(QStringLiteral("nodes"), type); })
        ->setShortcut(Qt::Key_F1);
}

void NodeMenu::paste()
{
    const QString text = QApplication::clipboard()->text();
    bool isPasted = true;
    for (SoFieldContainer* each : m_panel.nodes())
        isPasted = pasteValues(*each, text) && isPasted;
    if (!isPasted)
        say(tr("“%1” cannot be pasted: it has no values for the fields of %2.")
                .arg(text.trimmed().left(40), typeOf(*node())));
    m_panel.refresh();
}

void NodeMenu::resetAll()
{
    for (SoFieldContainer* each : m_panel.nodes()) {
        for (SoField* field : changedFields(*each))
            SpxFieldEdit::setToDefault(field);
    }
    m_panel.refresh();
}

void NodeMenu::keepAsDefaults()
{
    SpxNodeDefaults* defaults = SpxNodeDefaults::getInstance();
    QString problem;
    for (SoField* field : node() && defaults ? allFields(*node()) : std::vector<SoField*>()) {
        if (defaults->canHaveUserDefault(*field) && problem.isEmpty())
            problem = defaults->setUserDefault(*field);
    }
    if (!problem.isEmpty())
        say(problem);
}

void NodeMenu::say(const QString& sentence) const
{
    QToolTip::showText(m_panel.mapToGlobal(QPoint(0, 0)), sentence, &m_panel);
}

} // namespace inspector
