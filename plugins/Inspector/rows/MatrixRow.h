// SPDX-License-Identifier: MIT
#pragma once

#include "rows/NumberInputsRow.h"

namespace inspector
{

/// A matrix as a grid of its sixteen numbers.
class MatrixRow : public NumberInputsRow
{
    Q_OBJECT

public:
    explicit MatrixRow(SoField* field);

protected:
    void build() override;
    double shownNumber(int which) const override;
    QString shownText(int which) const override;
    void writeNumber(int which, double number) override;
};

} // namespace inspector
