// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFTextWidget.h"

#include <xsg/fields/SoSFString.h>

/// Edits a text.
class EdSFStringWidget : public EdSFTextWidget<SoSFString>
{
    Q_OBJECT

public:
    explicit EdSFStringWidget(const char* name = nullptr);
};
