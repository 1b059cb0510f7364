// SPDX-License-Identifier: MIT
#include "table/WideTable.h"

#include "table/ListTable.h"
#include "table/TableAccessible.h"

#include <scopix/SpxShell.h>
#include <scopix/SpxShellMenus.h>

#include <QDockWidget>

namespace inspector
{

WideTable::WideTable()
{
    setName("Table");
    setDescription(QT_TRANSLATE_NOOP("Extension", "Shows a list as a wide table."));
    setVendor("Arvex");
    setVersion("1.0.0");
    connect(&m_watcher, &SpxWatcher::changed, this, &WideTable::refresh);
    connect(&m_watcher, &SpxWatcher::objectDestroyed, this, &WideTable::letGo);
}

WideTable::~WideTable() = default;

ListTable* WideTable::table() const
{
    return m_table;
}

void WideTable::load()
{
    TableAccessible::install();
    m_dock = new QDockWidget(tr("Table"));
    m_table = new ListTable(VertexLink::Click::Selects, m_dock);
    m_table->setStandsAlone(tr("Choose “Open Wide” in the menu of a list’s table to see the list here."));
    m_dock->setWidget(m_table);
    m_dock->setVisible(false);
}

void WideTable::unload()
{
    m_watcher.stop();
    delete m_dock;
    TableAccessible::uninstall();
}

void WideTable::activate()
{
    SpxExtension::activate();
    SpxShell* shell = SpxShell::getInstance();
    shell->addDockWidget(m_dock, Qt::BottomDockWidgetArea);
    shell->attachExtension(this, true);
}

void WideTable::deactivate()
{
    m_table->endTyping();
    open(nullptr);
    hide();
    SpxExtension::deactivate();
    SpxShell* shell = SpxShell::getInstance();
    shell->removeDockWidget(m_dock);
    shell->detachExtension(this);
}

void WideTable::show()
{
    SpxExtension::show();
    if (m_dock)
        m_dock->setVisible(true);
}

void WideTable::hide()
{
    SpxExtension::hide();
    if (m_dock)
        m_dock->setVisible(false);
}

void WideTable::open(SoMField* list)
{
    if (!m_table)
        return;
    if (m_table->list())
        m_table->endTyping();
    m_watcher.watch(list);
    m_table->setList(list);
    if (!list)
        return;
    show();
    if (SpxShellMenus* shell = SpxShellMenus::getInstance())
        shell->raiseDocksOf("Table");
    m_table->view().setFocus();
}

void WideTable::refresh()
{
    if (m_table)
        m_table->refresh();
}

void WideTable::letGo()
{
    m_table->setList(nullptr);
    hide();
}

} // namespace inspector
