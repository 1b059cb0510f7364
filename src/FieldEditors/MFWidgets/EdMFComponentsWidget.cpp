// SPDX-License-Identifier: MIT
#include "EdMFComponentsWidget.h"

#include <scopix/editing/SpxText.h>

namespace componentText
{

QString toText(float value)
{
    return QString::number(double(value), 'g', 6);
}

QString toText(int value)
{
    return QString::number(value);
}

void fromText(const QString& text, float& value)
{
    value = SpxText::toFloatOr0(text);
}

void fromText(const QString& text, int& value)
{
    value = text.toInt();
}

void fromText(const QString& text, short& value)
{
    value = text.toShort();
}

} // namespace componentText
