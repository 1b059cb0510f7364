// SPDX-License-Identifier: MIT
#include "structure/StructureWatch.h"

#include <utility>

namespace scopix
{

StructureWatch* StructureWatch::s_active = nullptr;

StructureWatch* StructureWatch::setActive(StructureWatch* watch)
{
    return std::exchange(s_active, watch);
}

} // namespace scopix
