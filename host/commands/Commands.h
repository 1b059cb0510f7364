// SPDX-License-Identifier: MIT
// What each command does; CommandTable.cpp says how it is called.
#pragma once

#include "commands/Arguments.h"

namespace scopix
{

int printScene(const Arguments& arguments);
int setFields(const Arguments& arguments);
int findNodes(const Arguments& arguments);
int compareFiles(const Arguments& arguments);
int applyPatch(const Arguments& arguments);
int convertFile(const Arguments& arguments);
int drawPicture(const Arguments& arguments);
int checkFiles(const Arguments& arguments);
int countScene(const Arguments& arguments);
int measureScene(const Arguments& arguments);

} // namespace scopix
