// SPDX-License-Identifier: MIT
#pragma once

#include "Check.h"

#include <xsg/paths/SoScenePath.h>

namespace fuzz
{

/// A path is refused with a reason, or comes back as it was once written and read.
class PathCheck
{
public:
    void operator()(const std::uint8_t* data, std::size_t size) const
    {
        const std::string text(reinterpret_cast<const char*>(data), size);
        const SoScenePath path(text);
        if (!path.isValid()) {
            require(path.getError().getText().back() == '.',
                    "the error is no sentence: " + path.getError().getText());
            return;
        }
        const std::string once = path.toText();
        const SoScenePath again(once);
        require(again.isValid() && again == path, "a path that was written is another one: " + once);
        require(again.toText() == once, "a path changes when it is written and read: " + once);
    }
};

} // namespace fuzz
