// SPDX-License-Identifier: MIT
// The name of a node in the user interface.
#pragma once

#include <xsg/types/SoType.h>
#include <xsg/values/SbName.h>

#include <QString>

class SoFieldContainer;

namespace scopix
{

/// Names hold Latin-1.
QString toQString(SbName name);
SbName toName(const QString& text);
/// The node's name as people read it, or empty: numbers that a program gave it ("*0") say nothing, and a name
/// that was doubled on the way through another format ("body/body") is told once.
QString readableName(const SoFieldContainer& node);
/// The same, or the name of the node's type.
QString nodeText(const SoFieldContainer& node);

/// Before the names of types that another program calls as we call one of ours.
constexpr const char* OtherProgramPrefix = "live::";
/// The name of a type without it.
QString typeText(SoType type);

} // namespace scopix
