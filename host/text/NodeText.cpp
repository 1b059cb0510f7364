// SPDX-License-Identifier: MIT
#include "text/NodeText.h"

#include <xsg/core/SoFieldContainer.h>

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

QString nodeText(const SoFieldContainer& node)
{
    const SbName name = node.getName();
    return toQString(name.getLength() > 0 ? name : node.getTypeId().getName());
}

} // namespace scopix
