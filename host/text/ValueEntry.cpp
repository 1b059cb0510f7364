// SPDX-License-Identifier: MIT
#include "text/ValueEntry.h"

#include "text/NodeText.h"

#include <xsg/fields/SoSFName.h>
#include <xsg/fields/SoSFString.h>

namespace scopix
{

bool setFromText(SoField& field, const QString& text)
{
    if (auto* string = dynamic_cast<SoSFString*>(&field))
        string->setValue(SbString(text.toStdString()));
    else if (auto* name = dynamic_cast<SoSFName*>(&field))
        name->setValue(toName(text));
    else
        return field.set(SbString(text.toStdString()));
    return true;
}

} // namespace scopix
