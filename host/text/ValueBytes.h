// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

class SoField;

namespace scopix
{

/// What the value of a field takes in memory beside the field itself, about.
std::size_t valueBytes(const SoField& field);

} // namespace scopix
