// SPDX-License-Identifier: MIT
#include "frames/FramesDock.h"

#include "frames/FramesPanel.h"

#include <scopix/SpxShell.h>

#include <QDockWidget>

namespace profiler
{

FramesDock::FramesDock()
{
    setName("Frames");
    setDescription("Shows what each frame cost, and why.");
    setVendor("Arvex");
    setVersion("1.0.0");
}

FramesDock::~FramesDock() = default;

FramesPanel* FramesDock::getPanel() const
{
    return m_panel;
}

void FramesDock::load()
{
    m_dock = new QDockWidget(tr("Frames"));
    m_panel = new FramesPanel(SoFrameLog::getInstance(), m_dock);
    // A look at what was is no edit: it may go on while former values show.
    m_panel->setProperty("editsNothing", true);
    m_dock->setWidget(m_panel);
    m_dock->setVisible(false);
}

void FramesDock::unload()
{
    delete m_dock;
}

void FramesDock::activate()
{
    SpxExtension::activate();
    SpxShell* shell = SpxShell::getInstance();
    shell->addDockWidget(m_dock, Qt::BottomDockWidgetArea);
    shell->attachExtension(this, true);
}

void FramesDock::deactivate()
{
    hide();
    SpxExtension::deactivate();
    SpxShell* shell = SpxShell::getInstance();
    shell->removeDockWidget(m_dock);
    shell->detachExtension(this);
}

void FramesDock::show()
{
    SpxExtension::show();
    if (m_dock)
        m_dock->setVisible(true);
}

void FramesDock::hide()
{
    SpxExtension::hide();
    if (m_dock)
        m_dock->setVisible(false);
}

} // namespace profiler
