// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFFloatsWidget.h"

#include <xsg/fields/SoSFVec2f.h>

/// Edits a vector of two floats.
class EdSFVec2fWidget : public EdSFVectorOf<EdSFFloatsWidget, SoSFVec2f>
{
    Q_OBJECT

public:
    explicit EdSFVec2fWidget(const char* name = nullptr);
};
