// SPDX-License-Identifier: MIT
#pragma once

#include "EdSF2iSpinBox.h"

#include <xsg/fields/SoSFVec2i32.h>

/// Edits a vector of two integers of 32 bits.
class EdSFVec2i32Widget : public EdSF2iSpinBoxOf<SoSFVec2i32>
{
    Q_OBJECT

public:
    explicit EdSFVec2i32Widget(const char* name = nullptr);
};
