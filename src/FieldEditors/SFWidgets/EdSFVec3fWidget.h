// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFFloatsWidget.h"

#include <xsg/fields/SoSFVec3f.h>

/// Edits a vector of three floats.
class EdSFVec3fWidget : public EdSFVectorOf<EdSFFloatsWidget, SoSFVec3f>
{
    Q_OBJECT

public:
    explicit EdSFVec3fWidget(const char* name = nullptr);
};
