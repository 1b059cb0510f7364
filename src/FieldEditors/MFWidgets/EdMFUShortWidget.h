// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFIntegerWidget.h"

#include <xsg/fields/SoMFUShort.h>

struct MFUShortTraits {
    using Field = SoMFUShort;
    static constexpr const char* Name = "MFUShort";
    static constexpr auto Cell = EdMFieldTable::CELL_USHORT;
};

/// Edits lists of unsigned 16-bit integers.
class EdMFUShortWidget : public EdMFIntegerWidget<MFUShortTraits>
{
    Q_OBJECT

public:
    explicit EdMFUShortWidget(const char* name = nullptr);
};
