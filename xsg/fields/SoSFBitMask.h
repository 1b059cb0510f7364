// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFEnum.h>

/// Any combination of named bits. Its text is the names joined by " | ", bits without a name as one number,
/// and 0 (or the name of a zero entry) when no bit is set.
class XSG_API SoSFBitMask : public SoTyped<SoSFBitMask, SoSFEnum>
{
public:
    static constexpr const char* ClassName = "SFBitMask";

    SoSFBitMask() = default;
    SoSFBitMask(SoFieldContainer* owner, const char* name, SoEnumTablePtr table, int value)
        : SoTyped(owner, name, std::move(table), value)
    {
    }

    void get(SbString& text) const override;

protected:
    bool parse(std::string_view text) override;
};

extern template class SoTyped<SoSFBitMask, SoSFEnum>;
