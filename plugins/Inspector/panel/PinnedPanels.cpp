// SPDX-License-Identifier: MIT
#include "panel/PinnedPanels.h"

#include "panel/PinnedPanel.h"

#include <scopix/SpxSceneServices.h>
#include <scopix/SpxServices.h>
#include <scopix/SpxShell.h>

#include <algorithm>

namespace inspector
{

PinnedPanels::PinnedPanels()
{
    setName(QT_TRANSLATE_NOOP("Extension", "Pinned Panels"));
    setDescription(
        QT_TRANSLATE_NOOP("Extension", "Panels that stay with their nodes, whatever is selected."));
    setVendor("Arvex");
    setVersion("1.0.0");
}

PinnedPanels::~PinnedPanels()
{
    for (PinnedPanel* panel : m_panels)
        delete panel;
}

void PinnedPanels::activate()
{
    SpxExtension::activate();
    if (SpxServices* services = SpxServices::getInstance())
        connect(services, &SpxServices::selectedNodeChanged, this, &PinnedPanels::compare);
    SpxExtension::show();
    if (SpxShell* shell = SpxShell::getInstance())
        shell->attachExtension(this, true);
}

void PinnedPanels::deactivate()
{
    if (SpxServices* services = SpxServices::getInstance())
        disconnect(services, nullptr, this, nullptr);
    while (!m_panels.empty())
        close(m_panels.back());
    SpxExtension::deactivate();
    if (SpxShell* shell = SpxShell::getInstance())
        shell->detachExtension(this);
}

void PinnedPanels::unload()
{
    while (!m_panels.empty())
        close(m_panels.back());
}

void PinnedPanels::show()
{
    for (PinnedPanel* panel : m_panels)
        panel->show();
    SpxExtension::show();
}

void PinnedPanels::hide()
{
    for (PinnedPanel* panel : m_panels)
        panel->hide();
    SpxExtension::hide();
}

PinnedPanel* PinnedPanels::panelOf(const std::vector<SoFieldContainer*>& nodes) const
{
    const auto found = std::find_if(m_panels.begin(), m_panels.end(),
                                    [&](const PinnedPanel* panel) { return panel->nodes() == nodes; });
    return found == m_panels.end() ? nullptr : *found;
}

// One that is free again is used again, so that a panel comes where the last one of its name stood.
QString PinnedPanels::freeName() const
{
    const auto isTaken = [this](const QString& name) {
        return std::any_of(m_panels.begin(), m_panels.end(),
                           [&](const PinnedPanel* panel) { return panel->objectName() == name; });
    };
    int number = 1;
    while (isTaken(QString::fromLatin1("pinnedPanel%1").arg(number)))
        ++number;
    return QString::fromLatin1("pinnedPanel%1").arg(number);
}

void PinnedPanels::pin(const std::vector<SoFieldContainer*>& nodes)
{
    SpxShell* shell = SpxShell::getInstance();
    if (!isActive() || !shell || nodes.empty())
        return;
    if (PinnedPanel* panel = panelOf(nodes)) {
        panel->show();
        return panel->raise();
    }
    auto* panel = new PinnedPanel(nodes);
    panel->setObjectName(freeName());
    // From the event loop: it may be its own button or menu that closes it.
    connect(
        panel, &PinnedPanel::closed, this, [this, panel] { close(panel); }, Qt::QueuedConnection);
    connect(panel, &PinnedPanel::compareToggled, this, [this, panel](bool on) { setCompared(panel, on); });
    m_panels.push_back(panel);
    shell->addDockWidget(panel, Qt::RightDockWidgetArea);
    panel->show();
    panel->raise();
}

void PinnedPanels::close(PinnedPanel* panel)
{
    const auto found = std::find(m_panels.begin(), m_panels.end(), panel);
    if (found == m_panels.end())
        return;
    m_panels.erase(found);
    panel->finish();
    setCompared(panel, false);
    if (SpxShell* shell = SpxShell::getInstance())
        shell->removeDockWidget(panel);
    delete panel;
}

SoFieldContainer* PinnedPanels::compared() const
{
    return m_compared.size() == 1 ? m_compared.front()->node() : nullptr;
}

void PinnedPanels::setCompared(PinnedPanel* panel, bool on)
{
    const auto found = std::find(m_compared.begin(), m_compared.end(), panel);
    if (on == (found != m_compared.end()))
        return;
    if (on)
        m_compared.push_back(panel);
    else
        m_compared.erase(found);
    if (m_compared.size() > 2)
        return m_compared.front()->stopComparing(); // which comes back here
    compare();
    emit comparedChanged();
}

// Two with one another, one with the selected node.
void PinnedPanels::compare()
{
    if (m_compared.size() == 2) {
        m_compared[0]->compareWith(m_compared[1]->node());
        m_compared[1]->compareWith(m_compared[0]->node());
    } else if (m_compared.size() == 1) {
        const SpxSceneServices* scene = SpxSceneServices::getInstance();
        const QList<SoFieldContainer*> selected =
            scene ? scene->getSelectedNodes() : QList<SoFieldContainer*>();
        m_compared.front()->compareWith(selected.size() == 1 ? selected.first() : nullptr);
    }
}

} // namespace inspector
