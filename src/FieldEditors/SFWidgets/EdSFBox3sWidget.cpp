// SPDX-License-Identifier: MIT
#include "EdSFBox3sWidget.h"

#include <xsg/fields/SoSFBox3s.h>

namespace
{

std::vector<short> numbersOf(const SbBox3s& box)
{
    const SbVec3s& min = box.getMin();
    const SbVec3s& max = box.getMax();
    return {min[0], min[1], min[2], max[0], max[1], max[2]};
}

} // namespace

EdSFBox3sWidget::EdSFBox3sWidget(const char* name)
    : EdPopupWidget(2, 3, name)
{
    setFieldType(SoSFBox3s::getClassTypeId(), name);
}

void EdSFBox3sWidget::load()
{
    EdPopupWidget::load();
    setValidator(1);
}

QStringList EdSFBox3sWidget::cellTexts() const
{
    const auto* field = getFieldAs<SoSFBox3s>();
    QStringList texts;
    if (field) {
        for (short number : numbersOf(field->getValue()))
            texts << QString::number(number);
    }
    return texts;
}

void EdSFBox3sWidget::writeCells(const EdLineEditGroup& cells)
{
    auto* field = getFieldAs<SoSFBox3s>();
    std::vector<short> n = numbersOf(field->getValue());
    cells.read(n, [](const QString& text) { return text.toShort(); });
    field->setValue(n[0], n[1], n[2], n[3], n[4], n[5]);
}
