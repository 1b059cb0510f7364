// Edits a number of double precision.
#pragma once

#include "EdSFRealWidget.h"

#include <xsg/fields/SoSFDouble.h>

class EdSFDoubleWidget : public EdSFRealWidget<SoSFDouble>
{
    Q_OBJECT

public:
    explicit EdSFDoubleWidget(const char* name = nullptr);
};
