// SPDX-License-Identifier: MIT
#include "reader/RegularFiles.h"

#include <xsg/support/SpecialFile.h>

namespace scopix
{

bool RegularFiles::Exists(const char* path) const
{
    return !xsg::isSpecialFile(path) && DefaultIOSystem::Exists(path);
}

Assimp::IOStream* RegularFiles::Open(const char* path, const char* mode)
{
    return xsg::isSpecialFile(path) ? nullptr : DefaultIOSystem::Open(path, mode);
}

} // namespace scopix
