// Edits a vector of two floats.
#pragma once

#include "EdSFFloatsWidget.h"

#include <xsg/fields/SoSFVec2f.h>

class EdSFVec2fWidget : public EdSFVectorOf<EdSFFloatsWidget, SoSFVec2f>
{
    Q_OBJECT

public:
    explicit EdSFVec2fWidget(const char* name = nullptr);
};
