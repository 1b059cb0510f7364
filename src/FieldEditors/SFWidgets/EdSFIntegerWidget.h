// SPDX-License-Identifier: MIT
#pragma once

#include "EdIntSlider.h"
#include "EdSFieldWidget.h"
#include "EdUIntSlider.h"

/// What the four editors of integers share. They read and write the field's text, which leaves checking and
/// narrowing to the field, and take one range for all nodes.
///
/// Slider is the class of the slider that the frame type makes.
template <class Slider>
class EdSFIntegerWidget : public EdSFieldWidget
{
public:
    void load() override;
    void refresh() override;
    bool edited() override;

protected:
    void applyChanges() override;
    EdSFIntegerWidget(SFFrameType frameType, const char* name);

private:
    Slider* m_slider;
};

extern template class EdSFIntegerWidget<EdIntSlider>;
extern template class EdSFIntegerWidget<EdUIntSlider>;
