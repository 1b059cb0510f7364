// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFIntegerWidget.h"

#include <xsg/fields/SoMFUInt32.h>

struct MFUInt32Traits {
    using Field = SoMFUInt32;
    static constexpr const char* Name = "MFUInt32";
    static constexpr auto Cell = EdMFieldTable::CELL_UINT32;
};

/// Edits lists of unsigned 32-bit integers.
class EdMFUInt32Widget : public EdMFIntegerWidget<MFUInt32Traits>
{
    Q_OBJECT

public:
    explicit EdMFUInt32Widget(const char* name = nullptr);
};
