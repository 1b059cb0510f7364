// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxEditingExport.h>

#include <memory>

class SoField;

/// What a field held at a moment: its value, as a field of the same type, and whether it was ignored and
/// still the default. No text is made, so nothing is rounded and a reference to a node stays that very node,
/// which this object then keeps alive; the field's own node is not. Copies share the value. GUI thread only.
class SPX_EDITING_API SpxFieldState
{
public:
    SpxFieldState() = default;
    /// Evaluates the field first.
    explicit SpxFieldState(const SoField& field);

    /// False for an empty state: where it was made of nothing, or of a field whose type cannot be
    /// instantiated.
    bool isValid() const { return m_value != nullptr; }
    /// Whether the field, of the same type, has this value, whatever its flags; false for an empty state.
    bool isSame(const SoField& field) const;
    /// Writes the value and both flags to a field of the same type; a write notifies even when nothing
    /// differs. Nothing for an empty state, nor for a part of a list that has another length by now.
    void restore(SoField& field) const;
    /// The same value, to the last bit, and the same flags.
    bool isSame(const SpxFieldState& other) const;

    /// Of two states of the same field, both made by the constructor, lets go of the values at the beginning
    /// and at the end of a list that are the same in both. Each then restores the field from the other one,
    /// and costs what differs. Other values stay as they are.
    static void keepDifference(SpxFieldState& before, SpxFieldState& after);

private:
    bool restoreValue(SoField& field) const;

    std::shared_ptr<const SoField> m_value;
    int m_start = -1;     // of the part of a list that is kept; -1: all of it
    int m_replaced = 0;   // values of the other state that it replaces
    int m_otherTotal = 0; // values of the other state as a whole
    bool m_isIgnored = false;
    bool m_isDefault = false;
};
