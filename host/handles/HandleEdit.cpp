// SPDX-License-Identifier: MIT
#include "handles/HandleEdit.h"

#include "services/HostServices.h"
#include "undo/FieldEdit.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <xsg/core/SoField.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <algorithm>
#include <utility>

namespace scopix
{

namespace
{

using FieldEdits = std::vector<std::unique_ptr<FieldEdit>>;

using AddedTransforms = std::vector<std::shared_ptr<AddedTransform>>;

class FieldsCommand : public SpxCommand, public SpxEditedFields
{
public:
    explicit FieldsCommand(FieldEdits edits)
        : m_edits(std::move(edits))
    {
    }
    void execute() override { FieldsCommand::redo(); }
    void undo() override
    {
        for (const auto& edit : m_edits)
            edit->undo();
    }
    void redo() override
    {
        for (const auto& edit : m_edits)
            edit->redo();
    }
    std::vector<SoField*> editedFields() const override
    {
        std::vector<SoField*> fields;
        for (const auto& edit : m_edits)
            fields.push_back(&edit->field());
        return fields;
    }

private:
    FieldEdits m_edits;
};

// The transforms are in already when this is handed over, and have their values.
class AddTransformsCommand : public FieldsCommand
{
public:
    AddTransformsCommand(FieldEdits edits, AddedTransforms added, HostServices& services,
                         std::shared_ptr<QList<SoPath>> selection)
        : FieldsCommand(std::move(edits))
        , m_added(std::move(added))
        , m_services(services)
        , m_selection(std::move(selection))
    {
    }
    void undo() override
    {
        noteSelection(&AddedTransform::pathWithout);
        for (auto added = m_added.rbegin(); added != m_added.rend(); ++added)
            (*added)->takeOut();
        FieldsCommand::undo();
    }
    void redo() override
    {
        noteSelection(&AddedTransform::pathWith);
        for (const auto& added : m_added)
            added->putIn();
        FieldsCommand::redo();
    }
    std::vector<SoFieldContainer*> editedContainers() const override
    {
        std::vector<SoFieldContainer*> containers;
        for (const auto& added : m_added) {
            containers.push_back(added->getGroup());
            containers.push_back(added->getTransform());
        }
        return containers;
    }

private:
    // Several steps may be undone before anybody selects what they note.
    void noteSelection(SoPath (AddedTransform::*toOther)(const SoPath&) const)
    {
        const QList<SoPath> before = m_selection->isEmpty() ? m_services.getSelectedPaths() : *m_selection;
        QList<SoPath> after;
        bool differs = !m_selection->isEmpty();
        for (const SoPath& known : before) {
            SoPath path = known;
            for (const auto& added : m_added)
                path = (added.get()->*toOther)(path);
            differs = differs || path.getLength() != known.getLength() || path.getTail() != known.getTail();
            after.append(path);
        }
        if (differs)
            *m_selection = after;
    }

    AddedTransforms m_added;
    HostServices& m_services;
    std::shared_ptr<QList<SoPath>> m_selection;
};

bool movesNothing(const std::shared_ptr<AddedTransform>& added)
{
    const SoTransform* transform = added->getTransform();
    return transform->getMatrix() == SbMatrix();
}

} // namespace

HandleEdit::HandleEdit(HostServices& services)
    : m_services(services)
    , m_selection(std::make_shared<QList<SoPath>>())
{
}

HandleEdit::~HandleEdit() = default;

void HandleEdit::write(const std::function<void()>& change)
{
    const UserInput::Scope scope(m_services.history().input(), UserInput::Scope::Other);
    change();
}

void HandleEdit::add(SoNode* node, const std::vector<SoField*>& fields)
{
    m_nodes.emplace_back(node);
    for (SoField* field : fields) {
        m_fields.push_back(std::make_unique<FieldEdit>(*field));
        m_fields.back()->aboutToWrite(0, 1);
    }
}

void HandleEdit::add(std::shared_ptr<AddedTransform> added)
{
    m_nodes.emplace_back(added->getTransform());
    write([&] { added->putIn(); });
    m_added.push_back(std::move(added));
}

bool HandleEdit::differs()
{
    const auto nothing = std::stable_partition(m_added.begin(), m_added.end(),
                                               [](const auto& added) { return !movesNothing(added); });
    write([&] { std::for_each(nothing, m_added.end(), [](const auto& added) { added->takeOut(); }); });
    m_added.erase(nothing, m_added.end());
    for (const auto& edit : m_fields)
        edit->compare();
    m_fields.erase(
        std::remove_if(m_fields.begin(), m_fields.end(), [](const auto& edit) { return edit->isNothing(); }),
        m_fields.end());
    return !m_fields.empty() || !m_added.empty();
}

bool HandleEdit::keep(const QString& name)
{
    if (!isActive())
        return false;
    if (!differs()) {
        giveBack();
        return false;
    }
    const std::vector<SoRef<SoNode>> nodes = m_nodes; // alive until the history has the step
    for (const auto& edit : m_fields)
        edit->close();
    write([&] {
        for (const auto& edit : m_fields)
            edit->undo();
    });
    std::unique_ptr<SpxCommand> command;
    if (m_added.empty())
        command = std::make_unique<FieldsCommand>(std::move(m_fields));
    else
        command = std::make_unique<AddTransformsCommand>(std::move(m_fields), std::move(m_added), m_services,
                                                         m_selection);
    end();
    m_services.executeCommand(command.release(), name);
    return true;
}

void HandleEdit::giveBack()
{
    if (!isActive())
        return;
    write([this] {
        for (auto added = m_added.rbegin(); added != m_added.rend(); ++added)
            (*added)->takeOut();
        for (const auto& edit : m_fields) {
            edit->compare();
            edit->close();
            edit->undo();
        }
    });
    end();
}

QList<SoPath> HandleEdit::takeSelection()
{
    return std::exchange(*m_selection, {});
}

void HandleEdit::end()
{
    m_fields.clear();
    m_added.clear();
    m_nodes.clear();
}

} // namespace scopix
