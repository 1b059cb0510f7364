// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxFieldPointer.h>
#include <scopix/editing/SpxFieldState.h>
#include <scopix/editing/SpxSetFieldCommand.h>

#include <memory>
#include <type_traits>
#include <vector>

namespace inspector
{

/// An edit of the same field of one node or several, in one go and as one step, through the gate of
/// SpxFieldEdit. GUI thread only.
class FieldGroupEdit
{
public:
    /// Writes by `write`; one that returns false wrote nothing.
    template <class Write>
    void write(SoField* field, Write&& write)
    {
        auto command = std::make_unique<SpxSetFieldCommand>(field);
        const SpxFieldPointer written(field);
        bool isWritten = true;
        if constexpr (std::is_same_v<std::invoke_result_t<Write>, bool>)
            isWritten = write();
        else
            write();
        if (isWritten && written && command->canUndo())
            m_commands.push_back(std::move(command));
    }
    /// False where there is nothing to record.
    bool record();

private:
    std::vector<std::unique_ptr<SpxSetFieldCommand>> m_commands;
};

/// As SpxFieldGesture, of several fields at once: a drag or a picker is one step, or nothing. GUI thread
/// only.
class FieldGroupGesture
{
public:
    /// Ends another one first, and keeps it.
    void begin(const std::vector<SoField*>& fields);
    bool isActive() const;
    template <class Write>
    void write(Write&& write)
    {
        if (!isActive())
            return;
        m_isWritten = true;
        write();
    }
    /// True when it became a step.
    bool keep();
    /// Every bit and flag is as before.
    void giveBack();

private:
    struct Part {
        SpxFieldPointer field;
        SpxFieldState before;
        std::unique_ptr<SpxSetFieldCommand> command;
    };
    void end();

    std::vector<Part> m_parts;
    bool m_isWritten = false;
};

} // namespace inspector
