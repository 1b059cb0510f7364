// SPDX-License-Identifier: MIT
#pragma once

#include "fields/RotationParts.h"
#include "rows/NumberInputsRow.h"

class QComboBox;
class QGridLayout;

namespace inspector
{

/// A rotation as axis and angle, Euler angles or the stored quaternion. What was typed stays shown as typed
/// while the field holds what it made, also an axis while the angle is 0.
class RotationRow : public NumberInputsRow
{
    Q_OBJECT

public:
    explicit RotationRow(SoField* field);

protected:
    void build() override;
    void showValue() override;
    double shownNumber(int which) const override;
    QString shownText(int which) const override;
    void writeNumber(int which, double number) override;
    void fieldSwitched() override { updateParts(); }

private:
    void setForm(RotationForm form);
    void placeNumbers();
    void updateParts();
    bool isAngle(int which) const;
    const SbRotation& rotation() const;

    RotationForm m_form;
    bool m_showsDegrees;
    RotationParts m_parts{};
    SbRotation m_made; // of m_parts
    bool m_hasParts = false;
    QComboBox* m_forms = nullptr;
    QGridLayout* m_grid = nullptr;
};

} // namespace inspector
