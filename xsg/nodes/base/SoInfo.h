// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFString.h>
#include <xsg/nodes/base/SoNode.h>

/// A comment: a text for the reader, without effect on the picture.
class XSG_API SoInfo : public SoTyped<SoInfo, SoNode>
{
public:
    static constexpr const char* ClassName = "Info";

    SoSFString text{this, "text"};
};

extern template class SoTyped<SoInfo, SoNode>;
