// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExtension.h>
#include <scopix/SpxPlugin.h>

#include <memory>
#include <vector>

namespace inspector
{

/// The plug-in: owns its extensions.
class Inspector : public SpxPlugin
{
public:
    Inspector();

    bool load() override;

private:
    std::vector<std::unique_ptr<SpxExtension>> m_owned;
};

} // namespace inspector
