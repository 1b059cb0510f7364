// SPDX-License-Identifier: MIT
#include "services/HostServices.h"

#include <scopix/SpxCommand.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <algorithm>

namespace scopix
{

namespace
{

QString text(SbName name)
{
    return QString::fromLatin1(name.getString());
}

} // namespace

HostServices::HostServices()
{
    connect(&m_selection, &Selection::nodeChanged, this, &SpxServices::selectedNodeChanged);
    connect(&m_selection, &Selection::fieldChanged, this, &SpxServices::selectedFieldChanged);
    connect(&m_history, &UndoHistory::failed, this, &HostServices::commandFailed);
    SoFieldContainer::addDyingCallback(dyingCallback, this);
}

HostServices::~HostServices()
{
    SoFieldContainer::removeDyingCallback(dyingCallback, this);
}

void HostServices::executeCommand(SpxCommand* command)
{
    if (command)
        m_history.execute(std::unique_ptr<SpxCommand>(command), currentContext());
}

UndoHistory::CommandContext HostServices::currentContext() const
{
    UndoHistory::CommandContext context;
    context.text = stepText();
    context.gesture = m_gestures.current();
    // An edit that is applied while the selection changes belongs to the old selection.
    const auto touch = [&context](const SoFieldContainer* container) {
        auto& touched = context.touched;
        if (container && std::find(touched.begin(), touched.end(), container) == touched.end())
            touched.push_back(container);
    };
    touch(m_selection.lastNode());
    touch(m_selection.node());
    for (const SoField* field : {m_selection.lastField(), m_selection.field()})
        touch(field ? field->getContainer() : nullptr);
    return context;
}

QString HostServices::stepText() const
{
    const SoField* field = m_selection.lastField();
    const SoFieldContainer* node =
        field && field->getContainer() ? field->getContainer() : m_selection.lastNode();
    const QString type = node ? text(node->getTypeId().getName()) : QString();
    if (!field)
        return type.isEmpty() ? tr("Change") : tr("Change %1").arg(type);
    const QString name = text(field->getName());
    return tr("Change %1").arg(type.isEmpty() ? name : type + QLatin1Char('.') + name);
}

void HostServices::containerDies(SoFieldContainer* container)
{
    m_selection.forget(container);
    m_history.forget(container);
}

void HostServices::dyingCallback(void* services, SoFieldContainer* container)
{
    static_cast<HostServices*>(services)->containerDies(container);
}

} // namespace scopix
