// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFTextWidget.h"

#include <xsg/fields/SoSFName.h>

/// Edits a name.
class EdSFNameWidget : public EdSFTextWidget<SoSFName>
{
    Q_OBJECT

public:
    explicit EdSFNameWidget(const char* name = nullptr);
};
