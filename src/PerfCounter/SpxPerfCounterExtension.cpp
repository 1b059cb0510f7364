// SPDX-License-Identifier: MIT
#include "SpxPerfCounterExtension.h"

#include "SoPerfCounterDockWin.h"

#include <scopix/SpxShell.h>
#include <xsg/core/SoPreferences.h>

#include <QHBoxLayout>
#include <QLabel>

namespace
{

constexpr QSize MessageSize(213, 114);

QDockWidget* newMessageDock()
{
    auto* dock = new QDockWidget;
    dock->resize(MessageSize);
    dock->setMinimumSize(MessageSize);
    auto* contents = new QWidget;
    contents->setObjectName(QStringLiteral("dockWidgetContents"));
    auto* layout = new QHBoxLayout(contents);
    auto* label =
        new QLabel(SpxPerfCounterExtension::tr("To enable the performance counter extension, you need set "
                                               "the XSG_PERFCOUNTER_ENABLE environment variable to "
                                               "1 and restart the application."));
    label->setWordWrap(true);
    layout->addWidget(label);
    dock->setWidget(contents);
    return dock;
}

} // namespace

SpxPerfCounterExtension::SpxPerfCounterExtension()
{
    setName("PerfCounter");
    setVendor("Arvex");
    setDescription("tools to inspect performance of the scene graph.");
    setVersion("1.0.0");
}

void SpxPerfCounterExtension::load()
{
    if (SoPreferences::getBool("XSG_PERFCOUNTER_ENABLE", false))
        m_dock = new SoPerfCounterDockWin;
    else
        m_dock = newMessageDock();
    m_dock->setWindowTitle(tr("Performance Counter"));
    m_dock->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SpxPerfCounterExtension::activate()
{
    SpxShell::getInstance()->addDockWidget(m_dock, Qt::RightDockWidgetArea);
    SpxShell::getInstance()->attachExtension(this, true);
    show();
    SpxExtension::activate();
}

void SpxPerfCounterExtension::deactivate()
{
    SpxExtension::deactivate();
    SpxShell::getInstance()->removeDockWidget(m_dock);
    SpxShell::getInstance()->detachExtension(this);
}

void SpxPerfCounterExtension::show()
{
    SpxExtension::show();
    m_dock->setVisible(true);
}

void SpxPerfCounterExtension::hide()
{
    SpxExtension::hide();
    m_dock->setVisible(false);
}

void SpxPerfCounterExtension::unload()
{
    if (auto* tool = qobject_cast<SoPerfCounterDockWin*>(m_dock))
        tool->saveOwed();
    // The pointer stays as it is (decisions.md: counters-dock-pointer).
    delete m_dock;
}
