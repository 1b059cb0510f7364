// SPDX-License-Identifier: MIT
#include "fields/PastedText.h"

#include <scopix/editing/SpxFieldEdit.h>
#include <scopix/editing/SpxText.h>
#include <xsg/core/SoMField.h>
#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFName.h>
#include <xsg/fields/SoSFString.h>

#include <algorithm>

namespace inspector
{

namespace
{

QString quoted(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// Numbers with blanks between them, whatever another program puts there.
QString bare(const QString& text)
{
    QString numbers = text;
    for (const QChar sign : QStringLiteral(",;()[]{}\t"))
        numbers.replace(sign, QLatin1Char(' '));
    return numbers.simplified();
}

// One value a line, as tables and text files have them.
QString asList(const QString& text, bool isOfStrings)
{
    QStringList values;
    for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        values += isOfStrings ? quoted(line) : bare(line);
    return QStringLiteral("[ ") + values.join(QStringLiteral(", ")) + QStringLiteral(" ]");
}

QStringList readings(const SoField& field, const QString& text)
{
    if (dynamic_cast<const SoSFString*>(&field) || dynamic_cast<const SoSFName*>(&field))
        return {text.startsWith(QLatin1Char('"')) ? text : quoted(text), quoted(text)};
    if (dynamic_cast<const SoMField*>(&field))
        return {text, asList(text, dynamic_cast<const SoMFString*>(&field) != nullptr)};
    // Of a list, its first value.
    const QString first = text.section(QLatin1Char('\n'), 0, 0).section(QLatin1Char(','), 0, 0);
    return {text, bare(text), bare(first)};
}

} // namespace

QString plainText(const SoField& field)
{
    if (const auto* string = dynamic_cast<const SoSFString*>(&field))
        return SpxText::toQString(string->getValue());
    if (const auto* name = dynamic_cast<const SoSFName*>(&field))
        return SpxText::toQString(name->getValue());
    return SpxText::ofField(field);
}

bool pasteText(SoField* field, const QString& text)
{
    const QStringList all = readings(*field, text.trimmed());
    return std::any_of(all.begin(), all.end(),
                       [field](const QString& reading) { return SpxFieldEdit::setText(field, reading); });
}

} // namespace inspector
