// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Arguments.h"

namespace scopix
{

/// The program with its window, in the form of a command: what --help, the manual and the completions of the
/// shells say of it. It cannot be run like one; CommandLine reads its options.
const Command& windowCommand();

} // namespace scopix
