#include "panels/NodeText.h"

#include <xsg/core/SoFieldContainer.h>

QString scopix::toQString(SbName name)
{
    return QString::fromLatin1(name.getString());
}

SbName scopix::toName(const QString& text)
{
    return SbName(text.toLatin1().constData());
}

QString scopix::nodeText(const SoFieldContainer& node)
{
    const SbName name = node.getName();
    return toQString(name.getLength() > 0 ? name : node.getTypeId().getName());
}
