// SPDX-License-Identifier: MIT
#pragma once

#include "fields/MatrixParts.h"
#include "fields/PanelSettings.h"
#include "rows/NumberInputsRow.h"

class QComboBox;
class QLabel;

namespace inspector
{

/// A matrix as a grid of its sixteen numbers, or as moving, turning and scaling where it is made of these.
/// What was typed stays shown as typed while the field holds what it made, also a scale of 0.
class MatrixRow : public NumberInputsRow
{
    Q_OBJECT

public:
    explicit MatrixRow(SoField* field);

protected:
    void build() override;
    void showValue() override;
    double shownNumber(int which) const override;
    QString shownText(int which) const override;
    void writeNumber(int which, double number) override;
    void fieldSwitched() override { updateParts(); }

private:
    QWidget* makeForms();
    QWidget* makeGrid();
    QWidget* makeParts();
    void setForm(MatrixForm form);
    void updateParts();
    void showForm();
    bool isAngle(int which) const;
    const SbMatrix& matrix() const;

    MatrixForm m_form;
    bool m_showsDegrees;
    MatrixParts m_parts;
    MatrixParts::Shape m_shape = MatrixParts::Shape::Plain;
    SbMatrix m_made; // of m_parts
    bool m_hasParts = false;
    QComboBox* m_forms = nullptr;
    QLabel* m_note = nullptr;
    QWidget* m_grid = nullptr;
    QWidget* m_partInputs = nullptr;
};

} // namespace inspector
