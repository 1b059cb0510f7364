// SPDX-License-Identifier: MIT
#pragma once

#include <assimp/DefaultIOSystem.h>

namespace scopix
{

/// The files that a model may be made of: the importer opens whatever a model names, and a pipe among that
/// would keep it waiting. What is no regular file does not exist for it.
class RegularFiles : public Assimp::DefaultIOSystem
{
public:
    bool Exists(const char* path) const override;
    Assimp::IOStream* Open(const char* path, const char* mode) override;
};

} // namespace scopix
