// SPDX-License-Identifier: MIT
#pragma once

#include "EdSF4fBox.h"

#include <xsg/fields/SoSFVec4f.h>

/// Edits a vector of four floats.
class EdSFVec4fWidget : public EdSFVectorOf<EdSF4fBox, SoSFVec4f>
{
    Q_OBJECT

public:
    explicit EdSFVec4fWidget(const char* name = nullptr);
};
