// SPDX-License-Identifier: MIT
#pragma once

#include "fields/ShownUnit.h"
#include "rows/NumberInputsRow.h"

namespace inspector
{

struct NumberAccess;

/// A number, or a few in a row: vectors, planes, boxes, times.
class NumbersRow : public NumberInputsRow
{
    Q_OBJECT

public:
    explicit NumbersRow(SoField* field);

protected:
    void build() override;
    double shownNumber(int which) const override;
    QString shownText(int which) const override;
    void writeNumber(int which, double number) override;
    NumberEdit* draggedByCaption() const override;

private:
    const NumberAccess* m_access;
    ShownUnit m_unit;
};

} // namespace inspector
