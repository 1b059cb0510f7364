// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFIntegerWidget.h"

#include <xsg/fields/SoMFInt32.h>

struct MFInt32Traits {
    using Field = SoMFInt32;
    static constexpr const char* Name = "MFInt32";
    static constexpr auto Cell = EdMFieldTable::CELL_INT32;
};

/// Edits lists of 32-bit integers.
class EdMFInt32Widget : public EdMFIntegerWidget<MFInt32Traits>
{
    Q_OBJECT

public:
    explicit EdMFInt32Widget(const char* name = nullptr);
};
