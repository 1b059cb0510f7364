// SPDX-License-Identifier: MIT
#pragma once

#include "EdIntegerSlider.h"

/// Slider of an unsigned integer of 32 or 16 bits.
class EdUIntSlider : public EdIntegerSlider<unsigned int>
{
    Q_OBJECT

public:
    EdUIntSlider(SliderType type, SliderParentType parentType, SpxFieldEditors* owner, QWidget* parent,
                 int row, int column);

    /// Unlike in the other sliders, a fixed range narrows only what is accepted and leaves the slider's range
    /// where it was (decisions.md: unsigned-limits).
    void setValidLimits(unsigned int min, unsigned int max, bool boundFixed);

    void setValueFromEdit() override;
    void saveDataFromField() override;

protected:
    int positionOf(unsigned int value) const override;
    unsigned int numberAt(int position) const override;
    unsigned int toInteger(const QString& text, int radix, bool& ok) const override;
    bool isNumberTyped() const override;

private:
    unsigned int m_wholeType;
    unsigned int m_lowerLimit = 0;
    unsigned int m_upperLimit;
};
