// SPDX-License-Identifier: MIT
#pragma once

#include "EdNumberSlider.h"
#include "EdSliderValidator.h"

/// Slider of a number of single or double precision, over 101 positions.
class EdRealSlider : public EdNumberSlider<double>
{
    Q_OBJECT

public:
    EdRealSlider(SliderParentType parentType, SpxFieldEditors* owner, QWidget* parent, bool singlePrecision,
                 int row, int column);

    /// A fixed range clamps what is entered; another is only where the slider starts.
    void setValidLimits(double min, double max, bool boundFixed);
    /// Whatever the precision it shows, nothing that a float cannot hold can be typed.
    void limitToFloat();
    /// Shows a value that comes from the field. The slider keeps what the shown text says, so a value of
    /// single precision is rounded to 6 decimals.
    void setRealValue(double value);

    /// 0 to 100 within the range; 0 where the range is empty.
    int sliderToInt(double value) const;
    double sliderToDouble(int position) const;

    void updateEdit() override;
    void setValueFromEdit() override;
    void saveDataFromField() override;

protected:
    int positionOf(double value) const override { return sliderToInt(value); }
    double numberAt(int position) const override { return sliderToDouble(position); }
    bool isNumberTyped() const override;
    bool isTextTaken() const override;

private:
    QString numberText(double value) const;
    bool isTooWide() const;

    bool m_singlePrecision;
    EdSliderValidator<EdRealValidator>* m_validator;
};
