// SPDX-License-Identifier: MIT
#include "fields/ToolTip.h"

#include "fields/FieldText.h"
#include "fields/PanelSettings.h"
#include "fields/ShownUnit.h"

#include <scopix/editing/SpxFreshDefault.h>
#include <scopix/editing/SpxText.h>
#include <scopix/editing/descriptions/SpxFieldDescription.h>
#include <xsg/core/SoField.h>

#include <QCoreApplication>

#include <cmath>

namespace inspector
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("inspector::ToolTip", text);
}

QString number(double value)
{
    return SpxText::ofNumber(float(value));
}

// Of angles in what they are stored in: the inputs say what they show.
QString rangeOf(const SpxFieldDescription& description)
{
    QStringList parts;
    if (description.softLow != description.softHigh)
        parts += tr("%1 to %2").arg(number(description.softLow), number(description.softHigh));
    const bool hasLow = std::isfinite(description.hardLow);
    const bool hasHigh = std::isfinite(description.hardHigh);
    const bool isSame =
        description.hardLow == description.softLow && description.hardHigh == description.softHigh;
    if (isSame)
        return parts.join(QString());
    if (hasLow && hasHigh)
        parts += tr("at least %1, at most %2").arg(number(description.hardLow), number(description.hardHigh));
    else if (hasLow)
        parts += tr("at least %1").arg(number(description.hardLow));
    else if (hasHigh)
        parts += tr("at most %1").arg(number(description.hardHigh));
    return parts.join(QStringLiteral("; "));
}

// Of the table, whose texts are literals.
QString textOf(std::string_view text)
{
    return text.empty() ? QString() : QCoreApplication::translate("Field", text.data());
}

QString typeOf(const SoField& field)
{
    return SpxText::toQString(field.getTypeId().getName());
}

} // namespace

QString headingOf(const SpxFieldDescription& description)
{
    return textOf(description.heading);
}

QString meaningOf(const SpxFieldDescription& description)
{
    return textOf(description.meaning);
}

QString unitOf(const SpxFieldDescription& description)
{
    if (!description.unit.empty())
        return textOf(description.unit);
    switch (description.quantity) {
    case SpxQuantity::Angle:
        return PanelSettings::showsDegrees() ? tr("radians, shown in degrees") : tr("radians");
    case SpxQuantity::Length: {
        const QString shown = ShownUnit::of(description.quantity).name;
        return shown.isEmpty() ? tr("metres, where the scene has no other scale")
                               : tr("metres, shown in %1").arg(shown);
    }
    case SpxQuantity::Time:
        return tr("seconds");
    default:
        return {};
    }
}

QString toolTipOf(const SoField& field, const SpxFieldDescription* description)
{
    QStringList lines{
        QStringLiteral("<b>%1</b> (%2)").arg(SpxText::toQString(field.getName()), typeOf(field))};
    if (description) {
        lines += meaningOf(*description).toHtmlEscaped();
        const QString unit = unitOf(*description);
        if (!unit.isEmpty())
            lines += tr("Unit: %1").arg(unit.toHtmlEscaped());
        const QString range = rangeOf(*description);
        if (!range.isEmpty())
            lines += tr("Range: %1").arg(range);
    }
    const SpxFreshDefault fresh(&field);
    if (fresh.get())
        lines += tr("Default: %1").arg(summary(*fresh.get()).toHtmlEscaped());
    return lines.join(QStringLiteral("<br>"));
}

QString spokenMeaningOf(const SoField& field, const SpxFieldDescription* description)
{
    QStringList parts{typeOf(field)};
    if (description) {
        for (const QString& part : {unitOf(*description), rangeOf(*description), meaningOf(*description)}) {
            if (!part.isEmpty())
                parts += part;
        }
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace inspector
