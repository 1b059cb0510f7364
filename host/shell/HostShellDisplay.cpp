// SPDX-License-Identifier: MIT
// What extensions show of the scene: in the view, and in the tree.
#include "shell/HostShell.h"

namespace scopix
{

QList<SoNode*> HostShell::getHiddenNodes() const
{
    return m_display ? m_display->getHiddenNodes() : QList<SoNode*>();
}

void HostShell::setHidden(SoNode* node, bool hidden)
{
    if (m_display && node)
        m_display->setHidden(node, hidden);
}

void HostShell::setShapeColors(const SoShapeColors& colors)
{
    if (m_display)
        m_display->setShapeColors(colors);
}

void HostShell::setOverdrawShown(bool on)
{
    if (m_display)
        m_display->setOverdrawShown(on);
}

QList<SoNode*> HostShell::getIsolatedNodes() const
{
    return m_display ? m_display->getIsolatedNodes() : QList<SoNode*>();
}

void HostShell::addColumns(SpxTreeColumnProvider* provider)
{
    if (!provider || m_treeColumns.contains(provider))
        return;
    m_treeColumns.append(provider);
    emit treeColumnsChanged();
}

void HostShell::removeColumns(SpxTreeColumnProvider* provider)
{
    if (m_treeColumns.removeOne(provider))
        emit treeColumnsChanged();
}

void HostShell::updateColumns(SpxTreeColumnProvider* provider)
{
    if (m_treeColumns.contains(provider))
        emit treeValuesChanged();
}

} // namespace scopix
