// SPDX-License-Identifier: MIT
#pragma once

#include "EdRealSlider.h"
#include "EdSFieldWidget.h"

/// What the editors of single and double precision share: a slider over the range known for the field.
///
/// Field is the class of the edited field.
template <class Field>
class EdSFRealWidget : public EdSFieldWidget
{
public:
    void setField(SoField* field) override;
    void refresh() override;
    bool edited() override;

protected:
    void applyChanges() override;
    EdSFRealWidget(SFFrameType frameType, const char* name);

private:
    void setRange(const EdRangeComponent& range);
    void growTo(double value);

    EdRealSlider* m_slider;
};
