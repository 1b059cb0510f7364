// SPDX-License-Identifier: MIT
#include "fields/FieldQuery.h"

#include "fields/FieldKind.h"
#include "fields/NumberAccess.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>
#include <xsg/fields/SoSFName.h>
#include <xsg/fields/SoSFString.h>

namespace inspector
{

namespace
{

constexpr int MostParts = 4; // that a query can name
constexpr int LongestText = 200;

QString numbersQuery(const SoField& field, const NumberAccess& access)
{
    const QString name = SpxText::toQString(field.getName());
    const auto text = [&](int which) {
        const double number = access.get(field, which);
        return access.isFloat ? SpxText::ofNumber(float(number)) : SpxText::ofNumber(number);
    };
    if (access.count == 1)
        return name + QLatin1Char('=') + text(0);
    const char* const parts = kindOf(field) == FieldKind::Color ? "rgba" : "xyzw";
    QStringList terms;
    for (int i = 0; i < access.count; ++i)
        terms += QStringLiteral("%1.%2=%3").arg(name, QChar(QLatin1Char(parts[i])), text(i));
    return terms.join(QLatin1Char(' '));
}

} // namespace

QString queryFor(const SoField& field)
{
    const FieldKind kind = kindOf(field);
    if (kind == FieldKind::List || kind == FieldKind::Node || kind == FieldKind::Image)
        return {};
    const NumberAccess* access = NumberAccess::of(field);
    if (access)
        return access->count <= MostParts && kind != FieldKind::Rotation ? numbersQuery(field, *access)
                                                                         : QString();
    QString text = SpxText::ofField(field);
    if (const auto* string = dynamic_cast<const SoSFString*>(&field))
        text = SpxText::toQString(string->getValue());
    else if (const auto* name = dynamic_cast<const SoSFName*>(&field))
        text = SpxText::toQString(name->getValue());
    if (text.size() > LongestText || text.contains(QLatin1Char('"')) || text.contains(QLatin1Char('\n')))
        return {};
    return SpxText::toQString(field.getName()) + QStringLiteral("=\"") + text + QLatin1Char('"');
}

} // namespace inspector
