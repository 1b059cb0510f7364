// SPDX-License-Identifier: MIT
#include "support/Printable.h"

#include <xsg/values/Printable.h>

namespace scopix
{

QString printable(const QString& text)
{
    return QString::fromStdString(xsg::printable(text.toStdString()));
}

} // namespace scopix
