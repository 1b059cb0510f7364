// SPDX-License-Identifier: MIT
#include "rows/FieldGroup.h"

#include <scopix/editing/SpxFieldEdit.h>
#include <xsg/core/SoField.h>

#include <algorithm>

namespace inspector
{

namespace
{

using Commands = std::vector<std::unique_ptr<SpxSetFieldCommand>>;

// Each command knows its own field.
class GroupCommand : public SpxCommand, public SpxEditedFields
{
public:
    explicit GroupCommand(Commands commands)
        : m_commands(std::move(commands))
    {
    }

    void execute() override
    {
        for (const auto& each : m_commands)
            each->execute();
    }
    void undo() override
    {
        std::for_each(m_commands.rbegin(), m_commands.rend(), [](const auto& each) { each->undo(); });
    }
    void redo() override
    {
        for (const auto& each : m_commands)
            each->redo();
    }
    std::vector<SoField*> editedFields() const override
    {
        std::vector<SoField*> all;
        for (const auto& each : m_commands) {
            const auto fields = each->editedFields();
            all.insert(all.end(), fields.begin(), fields.end());
        }
        return all;
    }
    bool isWithoutEffect() const override
    {
        return std::all_of(m_commands.begin(), m_commands.end(),
                           [](const auto& each) { return each->isWithoutEffect(); });
    }

private:
    Commands m_commands;
};

bool recordAll(Commands commands)
{
    const auto isOver = [](const auto& each) { return each->editedFields().empty(); };
    commands.erase(std::remove_if(commands.begin(), commands.end(), isOver), commands.end());
    if (commands.empty())
        return false;
    const SoField* named = commands.front()->editedFields().front();
    if (commands.size() == 1)
        return SpxFieldEdit::record(std::move(commands.front()), *named);
    return SpxFieldEdit::record(std::make_unique<GroupCommand>(std::move(commands)), *named);
}

} // namespace

bool FieldGroupEdit::record()
{
    return recordAll(std::move(m_commands));
}

void FieldGroupGesture::begin(const std::vector<SoField*>& fields)
{
    keep();
    end();
    for (SoField* field : fields)
        m_parts.push_back(
            {SpxFieldPointer(field), SpxFieldState(*field), std::make_unique<SpxSetFieldCommand>(field)});
}

bool FieldGroupGesture::isActive() const
{
    return std::any_of(m_parts.begin(), m_parts.end(), [](const Part& part) { return part.field.get(); });
}

bool FieldGroupGesture::keep()
{
    const auto isSame = [](const Part& part) { return !part.field || part.before.isSame(*part.field.get()); };
    if (m_isWritten && std::all_of(m_parts.begin(), m_parts.end(), isSame))
        giveBack();
    Commands commands;
    for (Part& part : m_parts) {
        if (m_isWritten && part.field && part.command->canUndo())
            commands.push_back(std::move(part.command));
    }
    end();
    return recordAll(std::move(commands));
}

void FieldGroupGesture::giveBack()
{
    const std::vector<Part> parts = m_isWritten ? std::move(m_parts) : std::vector<Part>();
    end();
    for (const Part& part : parts) {
        if (part.field)
            part.before.restore(*part.field.get());
    }
}

void FieldGroupGesture::end()
{
    m_parts.clear();
    m_isWritten = false;
}

} // namespace inspector
