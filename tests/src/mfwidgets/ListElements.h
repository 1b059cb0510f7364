// SPDX-License-Identifier: MIT
#pragma once

#include "ListEditors.h"

#include <xsg/core/SoMField.h>
#include <xsg/values/SbString.h>

#include <QString>
#include <QStringList>

#include <string>

/// Elements that differ, for a list of any type, and a text that its cells accept.
namespace listElements
{

inline std::string typeOf(const SoMField& field)
{
    return field.getTypeId().getName().getString();
}

inline std::string textOf(const SoMField& field, int index)
{
    SbString text;
    field.get1(index, text);
    return text.str();
}

/// The text of an element, another for each of a few numbers: 0.25 0.25 0.25, say.
inline SbString element(const SoMField& field, int number)
{
    const std::string type = typeOf(field);
    if (type == "MFString")
        return SbString(("\"text " + std::to_string(number) + "\"").c_str());
    if (type == "MFBool")
        return SbString(number % 2 ? "TRUE" : "FALSE");
    const bool isReal = !type.compare(0, 7, "MFColor") || type == "MFFloat" || type == "MFDouble";
    const QString text = isReal ? QString::number(0.125 * number) : QString::number(number);
    const QStringList numbers = QString::fromStdString(textOf(field, 0)).split(' ');
    QStringList all;
    for (int i = 0; i < numbers.size(); ++i)
        all.append(text);
    return SbString(all.join(' ').toLatin1().constData());
}

inline void fill(SoMField& field, int count)
{
    field.setNum(count);
    for (int i = 0; i < count; ++i)
        field.set1(i, element(field, i));
}

/// What is typed into a cell and is taken; empty where no cell takes anything.
inline QString typed(const SoMField& field)
{
    const std::string type = typeOf(field);
    if (type == "MFVec2i32" || type == "MFMatrix")
        return {};
    if (type == "MFString")
        return QStringLiteral("typed");
    if (type == "MFBool")
        return QStringLiteral("TRUE");
    return type == "MFColor" ? QStringLiteral("0.75") : QStringLiteral("7");
}

} // namespace listElements
