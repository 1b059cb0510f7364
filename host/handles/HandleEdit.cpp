// SPDX-License-Identifier: MIT
#include "handles/HandleEdit.h"

#include "services/HostServices.h"
#include "undo/FieldEdit.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <xsg/core/SoField.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <algorithm>

namespace scopix
{

namespace
{

using FieldEdits = std::vector<std::unique_ptr<FieldEdit>>;

class FieldsCommand : public SpxCommand, public SpxEditedFields
{
public:
    explicit FieldsCommand(FieldEdits edits)
        : m_edits(std::move(edits))
    {
    }
    void execute() override { redo(); }
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

// The transform is in already when this is handed over, and has its values.
class AddTransformCommand : public SpxCommand, public SpxEditedFields
{
public:
    explicit AddTransformCommand(std::shared_ptr<AddedTransform> added)
        : m_added(std::move(added))
    {
    }
    void execute() override {}
    void undo() override { m_added->takeOut(); }
    void redo() override { m_added->putIn(); }
    std::vector<SoField*> editedFields() const override { return {}; }
    std::vector<SoFieldContainer*> editedContainers() const override
    {
        return {m_added->getGroup(), m_added->getTransform()};
    }

private:
    std::shared_ptr<AddedTransform> m_added;
};

} // namespace

HandleEdit::HandleEdit(HostServices& services)
    : m_services(services)
{
}

HandleEdit::~HandleEdit() = default;

void HandleEdit::write(const std::function<void()>& change)
{
    const UserInput::Scope scope(m_services.history().input(), UserInput::Scope::Other);
    change();
}

void HandleEdit::begin(SoNode* node, const std::vector<SoField*>& fields)
{
    m_node = SoRef<SoNode>(node);
    for (SoField* field : fields) {
        m_fields.push_back(std::make_unique<FieldEdit>(*field));
        m_fields.back()->aboutToWrite(0, 1);
    }
}

void HandleEdit::begin(std::shared_ptr<AddedTransform> added)
{
    m_node = SoRef<SoNode>(added->getTransform());
    m_added = std::move(added);
    write([&] { m_added->putIn(); });
}

bool HandleEdit::differs()
{
    if (m_added) {
        const SoTransform* transform = m_added->getTransform();
        return transform->getMatrix() != SbMatrix();
    }
    for (const auto& edit : m_fields)
        edit->compare();
    m_fields.erase(
        std::remove_if(m_fields.begin(), m_fields.end(), [](const auto& edit) { return edit->isNothing(); }),
        m_fields.end());
    return !m_fields.empty();
}

bool HandleEdit::keep(const QString& name)
{
    if (!isActive())
        return false;
    if (!differs()) {
        giveBack();
        return false;
    }
    const SoRef<SoNode> node = m_node; // alive until the history has the step
    std::unique_ptr<SpxCommand> command;
    if (m_added) {
        command = std::make_unique<AddTransformCommand>(m_added);
    } else {
        for (const auto& edit : m_fields)
            edit->close();
        write([&] {
            for (const auto& edit : m_fields)
                edit->undo();
        });
        command = std::make_unique<FieldsCommand>(std::move(m_fields));
    }
    end();
    m_services.executeCommand(command.release(), name);
    return true;
}

void HandleEdit::giveBack()
{
    if (!isActive())
        return;
    write([this] {
        if (m_added)
            m_added->takeOut();
        for (const auto& edit : m_fields) {
            edit->compare();
            edit->close();
            edit->undo();
        }
    });
    end();
}

void HandleEdit::end()
{
    m_fields.clear();
    m_added.reset();
    m_node = {};
}

} // namespace scopix
