// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFEnum.h>

/// Any number of values, each any combination of named bits.
class XSG_API SoMFBitMask : public SoTyped<SoMFBitMask, SoMFEnum>
{
public:
    static constexpr const char* ClassName = "MFBitMask";

    SoMFBitMask() = default;
    SoMFBitMask(SoFieldContainer* owner, const char* name, SoEnumTablePtr table,
                std::initializer_list<int> values = {})
        : SoTyped(owner, name, std::move(table), values)
    {
    }

protected:
    void writeListed(std::string& out, int value) const override;
    bool readListed(xsg::TextReader& in, int& value) const override;
    bool readAlone(std::string_view text, int& value) const override;
};

extern template class SoTyped<SoMFBitMask, SoMFEnum>;
