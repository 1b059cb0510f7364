// SPDX-License-Identifier: MIT
#include "SpxProfile.h"

SpxProfile::~SpxProfile() = default;
