// SPDX-License-Identifier: MIT
#pragma once

#include "EdIntegerSlider.h"
#include "EdSliderValidator.h"

/// Slider of a signed integer of 32 or 16 bits.
class EdIntSlider : public EdIntegerSlider<int>
{
    Q_OBJECT

public:
    EdIntSlider(SliderType type, SliderParentType parentType, SpxFieldEditors* owner, QWidget* parent,
                int row, int column);

    /// A fixed range clamps what is entered; another is only where the slider starts.
    void setValidLimits(int min, int max, bool boundFixed);

    void setValueFromEdit() override;
    void saveDataFromField() override;

protected:
    int positionOf(int value) const override { return value; }
    int numberAt(int position) const override { return position; }
    int toInteger(const QString& text, int radix, bool& ok) const override { return text.toInt(&ok, radix); }
    void radixChosen() override;

private:
    EdSliderValidator<EdIntValidator>* m_validator;
};
