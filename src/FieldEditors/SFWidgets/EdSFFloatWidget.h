// Edits a number of single precision.
#pragma once

#include "EdSFRealWidget.h"

#include <xsg/fields/SoSFFloat.h>

class EdSFFloatWidget : public EdSFRealWidget<SoSFFloat>
{
    Q_OBJECT

public:
    explicit EdSFFloatWidget(const char* name = nullptr);
};
