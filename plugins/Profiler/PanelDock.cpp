// SPDX-License-Identifier: MIT
#include "PanelDock.h"

#include <scopix/SpxShell.h>

#include <QCoreApplication>
#include <QDockWidget>

namespace profiler
{

PanelDock::PanelDock(const char* name, const char* description)
{
    setName(name);
    setDescription(description);
    setVendor("Arvex");
    setVersion("1.0.0");
}

PanelDock::~PanelDock() = default;

void PanelDock::load()
{
    m_dock = new QDockWidget(QCoreApplication::translate("Extension", getName().getString()));
    m_panel = makePanel();
    m_panel->setProperty("editsNothing", true);
    m_dock->setWidget(m_panel);
    m_dock->setVisible(false);
}

void PanelDock::unload()
{
    delete m_dock;
}

void PanelDock::activate()
{
    SpxExtension::activate();
    SpxShell* shell = SpxShell::getInstance();
    shell->addDockWidget(m_dock, Qt::BottomDockWidgetArea);
    shell->attachExtension(this, true);
}

void PanelDock::deactivate()
{
    hide();
    SpxExtension::deactivate();
    SpxShell* shell = SpxShell::getInstance();
    shell->removeDockWidget(m_dock);
    shell->detachExtension(this);
}

void PanelDock::show()
{
    SpxExtension::show();
    if (m_dock)
        m_dock->setVisible(true);
}

void PanelDock::hide()
{
    SpxExtension::hide();
    if (m_dock)
        m_dock->setVisible(false);
}

} // namespace profiler
