// SPDX-License-Identifier: MIT
#pragma once

#include <QUndoCommand>

namespace bench
{

/// An edit of a number as one would write it without an inspector: what edits are measured against.
class FloatStep : public QUndoCommand
{
public:
    FloatStep(float& value, float next)
        : m_value(value)
        , m_before(value)
        , m_next(next)
    {
    }
    void redo() override { m_value = m_next; }
    void undo() override { m_value = m_before; }

private:
    float& m_value;
    float m_before;
    float m_next;
};

} // namespace bench
