// Edits a name.
#pragma once

#include "EdSFTextWidget.h"

#include <xsg/fields/SoSFName.h>

class EdSFNameWidget : public EdSFTextWidget<SoSFName>
{
    Q_OBJECT

public:
    explicit EdSFNameWidget(const char* name = nullptr);
};
