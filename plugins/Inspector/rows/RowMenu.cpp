// SPDX-License-Identifier: MIT
#include "rows/RowMenu.h"

#include "fields/FieldQuery.h"

#include <scopix/SpxContextMenus.h>
#include <scopix/SpxGuide.h>
#include <scopix/SpxNodeDefaults.h>
#include <scopix/editing/SpxFieldPointer.h>
#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QToolTip>

namespace inspector
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("inspector::RowMenu", text);
}

void addFind(QMenu& menu, const SoField& field)
{
    const QString query = queryFor(field);
    if (!SpxGuide::getInstance() || query.isEmpty())
        return;
    menu.addAction(tr("&Find This Value"), [query] {
        if (SpxGuide* guide = SpxGuide::getInstance())
            guide->find(query);
    });
}

// What cannot be done is said where the user looks.
void addUserDefault(QMenu& menu, const SpxFieldPointer& field, QWidget& row)
{
    const SpxNodeDefaults* defaults = SpxNodeDefaults::getInstance();
    if (!defaults || !defaults->canHaveUserDefault(*field.get()))
        return;
    const auto add = [&](const QString& title, QString (SpxNodeDefaults::*act)(const SoField&)) {
        return menu.addAction(title, &row, [field, act, widget = &row] {
            SpxNodeDefaults* host = SpxNodeDefaults::getInstance();
            const QString problem = host && field ? (host->*act)(*field.get()) : QString();
            if (!problem.isEmpty())
                QToolTip::showText(widget->mapToGlobal(QPoint(0, widget->height())), problem, widget);
        });
    };
    add(tr("Use as My Default for &New Nodes"), &SpxNodeDefaults::setUserDefault);
    if (defaults->hasUserDefault(*field.get()))
        add(tr("For&get My Default for New Nodes"), &SpxNodeDefaults::clearUserDefault);
}

void addHelp(QMenu& menu, const SpxFieldPointer& field)
{
    if (!SpxGuide::getInstance() || !field->getContainer())
        return;
    const QString type = SpxText::toQString(field->getContainer()->getTypeId().getName());
    menu.addAction(tr("&Help on %1").arg(type), [field] { showHelpFor(field); })->setShortcut(Qt::Key_F1);
}

} // namespace

void addActionsAround(QMenu& menu, const QWidget& widget)
{
    for (const QWidget* around = widget.parentWidget(); around && !around->isWindow();
         around = around->parentWidget())
        menu.addActions(around->actions());
}

bool showHelpFor(const SpxFieldPointer& field)
{
    SpxGuide* guide = SpxGuide::getInstance();
    return guide && field && field->getContainer() &&
           guide->showHelp(QStringLiteral("nodes"),
                           SpxText::toQString(field->getContainer()->getTypeId().getName()));
}

void addEntriesBeyond(QMenu& menu, const SpxFieldPointer& field, QWidget& row)
{
    menu.addSeparator();
    addFind(menu, *field.get());
    addUserDefault(menu, field, row);
    menu.addSeparator();
    addActionsAround(menu, row);
    addHelp(menu, field);
    if (SpxContextMenus* menus = SpxContextMenus::getInstance())
        menus->fillFieldMenu(menu, *field.get());
}

} // namespace inspector
