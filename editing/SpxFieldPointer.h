// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxEditingExport.h>

#include <memory>

class FieldLife;
class SoField;

/// A pointer to a field that becomes null when the field, or the node that owns it, is destroyed: what
/// QPointer is for QObjects. It keeps neither alive. GUI thread only.
class SPX_EDITING_API SpxFieldPointer
{
public:
    SpxFieldPointer() = default;
    SpxFieldPointer(SoField* field); // NOLINT(google-explicit-constructor)

    /// Null also while the field's node is being destroyed, when writing the field makes no sense any more.
    SoField* get() const;
    SoField* operator->() const { return get(); }
    explicit operator bool() const { return get() != nullptr; }

private:
    SoField* m_field = nullptr;
    std::shared_ptr<const FieldLife> m_life;
};
