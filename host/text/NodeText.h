// SPDX-License-Identifier: MIT
// The name of a node in the user interface.
#pragma once

#include <xsg/values/SbName.h>

#include <QString>

class SoFieldContainer;

namespace scopix
{

/// Names hold Latin-1.
QString toQString(SbName name);
SbName toName(const QString& text);
/// The node's name, or its type's where it has none.
QString nodeText(const SoFieldContainer& node);

} // namespace scopix
