// SPDX-License-Identifier: MIT
#include "text/ValueText.h"

#include "text/NodeText.h"

#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/fields/SoSFName.h>
#include <xsg/fields/SoSFString.h>

#include <QCoreApplication>

#include <algorithm>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("ValueText", text);
}

QString shortened(QString text, int limit)
{
    text.replace(QLatin1Char('\n'), QChar(0x23ce));
    if (text.size() > limit) {
        text.truncate(limit - 1);
        if (text.at(text.size() - 1).isHighSurrogate())
            text.chop(1);
        text += QChar(0x2026);
    }
    return text;
}

// Enough bytes for `limit` characters, whatever they are; a character cut at the end falls behind the limit.
QString startOf(const std::string& utf8, int limit)
{
    const auto bytes = std::min<std::size_t>(utf8.size(), 4 * static_cast<std::size_t>(limit) + 4);
    return QString::fromUtf8(utf8.data(), static_cast<int>(bytes));
}

QString imageText(const SoSFImage& field)
{
    int width = 0;
    int height = 0;
    int components = 0;
    const bool hasBytes = field.getValue(width, height, components) != nullptr;
    if (!hasBytes)
        return tr("no picture");
    const QString names[] = {{}, tr("grey"), tr("grey, alpha"), tr("RGB"), tr("RGBA")};
    return tr("%1 × %2, %3").arg(width).arg(height).arg(names[components]);
}

QString elementText(const SoMField& field, int index, int limit)
{
    if (const auto* strings = dynamic_cast<const SoMFString*>(&field))
        return QLatin1Char('"') + startOf((*strings)[index].str(), limit) + QLatin1Char('"');
    SbString text;
    field.get1(index, text);
    return startOf(text.str(), limit);
}

QString listText(const SoMField& field, int limit)
{
    const int count = field.getNum();
    QString text;
    for (int i = 0; i < count && text.size() <= limit; ++i)
        text += (i > 0 ? QStringLiteral(", ") : QString()) + elementText(field, i, limit);
    if (count == 1)
        return text;
    return count == 0 ? tr("empty") : tr("%1 × [%2]").arg(count).arg(text);
}

} // namespace

QString valueText(const SoField& field, int limit)
{
    if (const auto* list = dynamic_cast<const SoMField*>(&field))
        return shortened(listText(*list, limit), limit);
    if (const auto* image = dynamic_cast<const SoSFImage*>(&field))
        return imageText(*image);
    if (const auto* string = dynamic_cast<const SoSFString*>(&field))
        return shortened(startOf(string->getValue().str(), limit), limit);
    SbString text;
    field.get(text);
    return shortened(startOf(text.str(), limit), limit);
}

QString wholeValueText(const SoField& field)
{
    if (const auto* string = dynamic_cast<const SoSFString*>(&field))
        return QString::fromStdString(string->getValue().str());
    if (const auto* name = dynamic_cast<const SoSFName*>(&field))
        return toQString(name->getValue());
    SbString text;
    field.get(text);
    return QString::fromStdString(text.str());
}

} // namespace scopix
