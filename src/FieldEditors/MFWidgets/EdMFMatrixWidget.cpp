// SPDX-License-Identifier: MIT
#include "EdMFMatrixWidget.h"

#include "EdFieldEdits.h"
#include "EdTablePopupLineEdit.h"

#include <scopix/editing/SpxText.h>

namespace
{

constexpr int GridSize = 4;
constexpr int FloatValidator = 3;

} // namespace

EdMFMatrixWidget::EdMFMatrixWidget(const char* name)
    : EdTablePopupWidget(GridSize, GridSize, name)
{
    setHandledType(SoMFMatrix::getClassTypeId());
    setName("MFMatrix");
    if (!name)
        setObjectName(QStringLiteral("EdMFMatrixWidget"));
}

void EdMFMatrixWidget::load()
{
    setFieldName(QStringLiteral("MFMatrix"));
    EdTablePopupWidget::load();
    setValidator(FloatValidator);
}

bool EdMFMatrixWidget::checkField(SoField* field)
{
    return field && field->isOfType(SoMFMatrix::getClassTypeId());
}

void EdMFMatrixWidget::setField(SoField* field)
{
    m_textField = nullptr; // a field may be made where another one was
    EdTablePopupWidget::setField(field);
}

const QString& EdMFMatrixWidget::wholeText() const
{
    const SoMFMatrix* field = matrices();
    field->evaluate();
    if (m_textField != field || m_textChange != field->getChangeCount()) {
        SbString text;
        field->get(text);
        m_text = SpxText::toQString(text);
        m_textField = field;
        m_textChange = field->getChangeCount();
    }
    return m_text;
}

QString EdMFMatrixWidget::getFieldValue(int /*row*/, int /*column*/) const
{
    return editedField() ? wholeText() : QString();
}

QString EdMFMatrixWidget::getCellText(int /*row*/, int /*column*/, int length) const
{
    if (!editedField())
        return {};
    QString text = QStringLiteral("[ ");
    const int count = matrices()->getNum();
    for (int i = 0; i < count && text.size() < length; ++i) {
        SbString element;
        matrices()->get1(i, element);
        text += SpxText::toQString(element) + (i + 1 < count ? QStringLiteral(", ") : QStringLiteral(" "));
    }
    return (text + QLatin1Char(']')).left(length);
}

QString EdMFMatrixWidget::getPopupValue(int row, int index)
{
    if (!hasRow(row))
        return {};
    return QString::number(double((*matrices())[row].getValue()[index]), 'g', 6);
}

void EdMFMatrixWidget::set1Value(int row, int /*column*/, QString /*text*/)
{
    if (!hasRow(row))
        return;
    float numbers[GridSize * GridSize];
    const float* present = (*matrices())[row].getValue();
    for (const EdTablePopupLineEdit* line : lines()) {
        numbers[line->index()] =
            line->isUntouched() ? present[line->index()] : SpxText::toFloatOr0(line->text());
    }
    EdFieldEdits::write1(matrices(), row, [&] { matrices()->set1Value(row, SbMatrix(numbers)); });
}

void EdMFMatrixWidget::swapRows(int row1, int row2)
{
    swapElements(matrices(), row1, row2);
}
