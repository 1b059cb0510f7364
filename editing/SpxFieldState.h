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
    /// differs. Nothing for an empty state.
    void restore(SoField& field) const;

private:
    std::shared_ptr<const SoField> m_value;
    bool m_isIgnored = false;
    bool m_isDefault = false;
};
