// SPDX-License-Identifier: MIT
#include "EdSFMatrixWidget.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFMatrix.h>

namespace
{

constexpr int Size = 4;

std::vector<float> transposed(const float* numbers)
{
    std::vector<float> result;
    for (int row = 0; row < Size; ++row) {
        for (int column = 0; column < Size; ++column)
            result.push_back(numbers[Size * column + row]);
    }
    return result;
}

} // namespace

EdSFMatrixWidget::EdSFMatrixWidget(const char* name)
    : EdPopupWidget(Size, Size, name)
{
    setFieldType(SoSFMatrix::getClassTypeId(), name);
}

void EdSFMatrixWidget::load()
{
    EdPopupWidget::load();
    setValidator(3);
}

QStringList EdSFMatrixWidget::cellTexts() const
{
    const auto* field = getFieldAs<SoSFMatrix>();
    QStringList texts;
    if (field) {
        for (float number : transposed(field->getValue().getValue()))
            texts << QString::number(double(number));
    }
    return texts;
}

void EdSFMatrixWidget::writeCells(const EdLineEditGroup& cells)
{
    auto* field = getFieldAs<SoSFMatrix>();
    std::vector<float> numbers = transposed(field->getValue().getValue());
    cells.read(numbers, SpxText::toFloatOr0);
    field->setValue(SbMatrix(transposed(numbers.data()).data()));
}
