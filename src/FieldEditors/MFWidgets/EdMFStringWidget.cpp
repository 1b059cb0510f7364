// SPDX-License-Identifier: MIT
#include "EdMFStringWidget.h"

#include "EdFieldEdits.h"

#include <scopix/editing/SpxText.h>

namespace
{

// The longest form of a character in UTF-8, in bytes.
constexpr int BytesPerCharacter = 4;

} // namespace

EdMFStringWidget::EdMFStringWidget(const char* name)
    : EdMFieldWidget(name)
{
    setHandledType(SoMFString::getClassTypeId());
    setName("MFString");
    if (!name)
        setObjectName(QStringLiteral("EdMFStringWidget"));
}

void EdMFStringWidget::load()
{
    setFieldName(QStringLiteral("MFString"));
    EdMFieldWidget::load();
    initClass();
}

void EdMFStringWidget::initClass()
{
    initColumns({}, 1);
}

bool EdMFStringWidget::checkField(SoField* field)
{
    return field && field->isOfType(SoMFString::getClassTypeId());
}

QString EdMFStringWidget::getFieldValue(int row, int column) const
{
    if (column != 0 || !hasRow(row))
        return {};
    return SpxText::toQString(getSingleFieldValue(row, column));
}

QString EdMFStringWidget::getCellText(int row, int column, int length) const
{
    if (column != 0 || !hasRow(row))
        return {};
    const std::string& text = (*texts())[row].str();
    const std::size_t bytes = std::min(text.size(), std::size_t(length) * BytesPerCharacter);
    return QString::fromUtf8(text.data(), int(bytes)).left(length);
}

void EdMFStringWidget::set1Value(int row, int column, QString text)
{
    setSingleFieldValue(SpxText::toSbString(text), row, column);
}

void EdMFStringWidget::setSingleFieldValue(const SbString& value, int row, int /*column*/)
{
    if (!hasRow(row))
        return;
    EdFieldEdits::write1(texts(), row, [&] { texts()->set1Value(row, value); });
}

SbString EdMFStringWidget::getSingleFieldValue(int row, int /*column*/) const
{
    return (*texts())[row];
}

void EdMFStringWidget::swapRows(int row1, int row2)
{
    swapElements(texts(), row1, row2);
}
