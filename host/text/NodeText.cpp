// SPDX-License-Identifier: MIT
#include "text/NodeText.h"

#include <xsg/core/SoFieldContainer.h>

#include <algorithm>

namespace scopix
{

QString toQString(SbName name)
{
    return QString::fromLatin1(name.getString());
}

SbName toName(const QString& text)
{
    return SbName(text.toLatin1().constData());
}

QString readableName(const SoFieldContainer& node)
{
    const QString name = toQString(node.getName());
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    if (name.startsWith(QLatin1Char('*')) && std::all_of(name.begin() + 1, name.end(), isDigit))
        return {};
    const int half = name.size() / 2;
    const bool isDoubled = name.size() % 2 == 1 && name.at(half) == QLatin1Char('/') &&
                           name.leftRef(half) == name.midRef(half + 1);
    return isDoubled && half > 0 ? name.left(half) : name;
}

QString nodeText(const SoFieldContainer& node)
{
    const QString name = readableName(node);
    return name.isEmpty() ? typeText(node.getTypeId()) : name;
}

QString typeText(SoType type)
{
    const QString name = toQString(type.getName());
    const QLatin1String prefix(OtherProgramPrefix);
    return name.startsWith(prefix) ? name.mid(prefix.size()) : name;
}

} // namespace scopix
