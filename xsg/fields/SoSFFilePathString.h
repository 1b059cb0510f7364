// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFString.h>

/// The path of a file.
class XSG_API SoSFFilePathString : public SoTyped<SoSFFilePathString, SoSFString>
{
public:
    static constexpr const char* ClassName = "SFFilePathString";

    SoSFFilePathString() = default;
    SoSFFilePathString(SoFieldContainer* owner, const char* name, const SbString& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoTyped<SoSFFilePathString, SoSFString>;
