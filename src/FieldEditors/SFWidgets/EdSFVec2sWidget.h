// SPDX-License-Identifier: MIT
#pragma once

#include "EdSF2iSpinBox.h"

#include <xsg/fields/SoSFVec2s.h>

/// Edits a vector of two integers of 16 bits.
class EdSFVec2sWidget : public EdSF2iSpinBoxOf<SoSFVec2s>
{
    Q_OBJECT

public:
    explicit EdSFVec2sWidget(const char* name = nullptr);
};
