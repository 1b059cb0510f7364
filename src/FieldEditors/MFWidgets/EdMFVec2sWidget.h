// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFComponentsWidget.h"

#include <xsg/fields/SoMFVec2s.h>

struct MFVec2sTraits {
    using Field = SoMFVec2s;
    using Component = short;
    static constexpr const char* Name = "MFVec2s";
    /// No validator: any text can be typed, and what does not convert gives 0 (decisions.md:
    /// vec2s-free-text).
    static constexpr auto Cell = EdMFieldTable::CELL_NONE;
    static QStringList captions() { return {"x", "y"}; }
    static Component get(const Field::Value& element, int column) { return element[column]; }
    static Field::Value with(Field::Value element, int column, Component value)
    {
        element[column] = value;
        return element;
    }
};

/// Edits lists of two 16-bit integers, one per row.
class EdMFVec2sWidget : public EdMFComponentsWidget<MFVec2sTraits>
{
    Q_OBJECT

public:
    explicit EdMFVec2sWidget(const char* name = nullptr);
};
