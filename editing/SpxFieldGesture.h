// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxFieldEdit.h>
#include <scopix/editing/SpxFieldState.h>

/// An edit of one field that the user sees while it goes on, such as a drag or a colour picker: written as
/// often as wanted, then kept as one undo step, or given back. A field that is destroyed meanwhile ends it
/// without a step, and so does this object's end, where what was written stays. GUI thread only.
class SPX_EDITING_API SpxFieldGesture
{
public:
    /// Ends another edit first, and keeps it.
    void begin(SoField* field);
    bool isActive() const { return m_field.get() != nullptr; }
    SoField* getField() const { return m_field.get(); }

    /// Writes the field by `write`; nothing unless active.
    template <class Write>
    void write(Write&& write)
    {
        if (!isActive())
            return;
        m_isWritten = true;
        write();
    }
    /// True when it became a step; a value that is the same as before is none.
    bool keep();
    /// The value is the one before, every bit, and so is the default flag.
    void giveBack();

private:
    void end();

    SpxFieldPointer m_field;
    SpxFieldState m_before;
    std::unique_ptr<SpxSetFieldCommand> m_command;
    bool m_isWritten = false;
};
