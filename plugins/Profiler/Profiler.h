// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExtension.h>
#include <scopix/SpxPlugin.h>

#include <memory>
#include <vector>

namespace profiler
{

/// The plug-in: owns its extensions.
class Profiler : public SpxPlugin
{
public:
    Profiler();

    bool load() override;

private:
    std::vector<std::unique_ptr<SpxExtension>> m_owned;
};

} // namespace profiler
