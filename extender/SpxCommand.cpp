// SPDX-License-Identifier: MIT
#include "SpxCommand.h"

SpxCommand::SpxCommand() = default;

SpxCommand::~SpxCommand() = default;
