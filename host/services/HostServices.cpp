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

const SoFieldContainer* containerOf(const SoField* field)
{
    return field ? field->getContainer() : nullptr;
}

} // namespace

HostServices::HostServices()
{
    connect(&m_selection, &Selection::nodeChanged, this, &SpxServices::selectedNodeChanged);
    connect(&m_selection, &Selection::fieldChanged, this, &SpxServices::selectedFieldChanged);
    connect(&m_selection, &Selection::changed, this, [this] {
        m_alsoEdited.clear();
        emit selectionChanged();
    });
    connect(&m_history, &UndoHistory::failed, this, &HostServices::commandFailed);
    connect(&m_history, &UndoHistory::lost, this, &HostServices::stepsLost);
    m_history.setEdited([this] { return currentContext(); },
                        [this](const SoField& field) { return isEdited(field); });
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
        touch(containerOf(field));
    return context;
}

// Editors show the selected field, or fields of the selected nodes.
bool HostServices::isEdited(const SoField& field) const
{
    return &field == m_selection.field() || &field == m_selection.lastField() ||
           m_selection.isOrWasSelected(field.getContainer()) || m_alsoEdited.count(field.getContainer()) > 0;
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

void HostServices::select(SoFieldContainer* node)
{
    changeSelection([&] { m_selection.select(node); });
}

void HostServices::select(SoField* field)
{
    changeSelection([&] { m_selection.select(field); });
}

void HostServices::clearSelection()
{
    changeSelection([this] { m_selection.clear(); });
}

void HostServices::tellSelectionAgain()
{
    changeSelection([this] { m_selection.reemit(); });
}

void HostServices::containerDies(SoFieldContainer* container)
{
    if (m_selection.isOrWasSelected(container) || container == containerOf(m_selection.field()))
        changeSelection([&] { m_selection.forget(container); });
    else
        m_selection.forget(container);
    m_alsoEdited.erase(container);
    m_preview.forget(container);
    m_history.forget(container);
}

void HostServices::dyingCallback(void* services, SoFieldContainer* container)
{
    static_cast<HostServices*>(services)->containerDies(container);
}

} // namespace scopix
