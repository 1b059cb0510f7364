// SPDX-License-Identifier: MIT
// The values that the user wants new nodes to have, for each type of node and each field, in a file of the
// user's settings. As SpxNodeDefaults has it. GUI thread only.
#pragma once

#include <QString>

class SoField;
class SoFieldContainer;

namespace scopix
{

bool canHaveUserDefault(const SoField& field);
bool hasUserDefault(const SoField& field);
QString setUserDefault(const SoField& field);
QString clearUserDefault(const SoField& field);
/// For a node that is made for the user, before it comes into the scene.
void applyUserDefaults(SoFieldContainer& node);

} // namespace scopix
