// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFName.h>
#include <xsg/nodes/base/SoSFNode.h>

/// Keys of one field of one node, for an animation: at these times it has these values. Fields of numbers,
/// rotations, colours and lists of numbers can be animated.
class XSG_API SoTrack : public SoTyped<SoTrack, SoNode>
{
public:
    static constexpr const char* ClassName = "Track";
    enum Interpolation { Step = 0, Linear = 1, Cubic = 2 };

    SoSFNode target{this, "target"};
    SoSFName field{this, "field"}; // of the target
    SoSFEnum interpolation{this, "interpolation", getInterpolationNames(), Linear};
    SoMFFloat times{this, "times"}; // of the keys in seconds, growing
    /// The numbers of all keys, one key after the other. Cubic keys have three values each: the tangent that
    /// leads to the key, its value, and the tangent that leads away from it, both per second.
    SoMFFloat values{this, "values"};

    /// The field that it animates, or null.
    SoField* findTarget() const;
    /// How many numbers a value has; 0 for lists that do not fit together.
    int getWidth() const;
    /// Whether it can write such a field.
    bool canWrite(const SoField& to) const;
    /// Writes the value at this time, where it is not the present one; canWrite() holds.
    void write(SoField& to, float time) const;

    static SoEnumTablePtr getInterpolationNames();
};

extern template class SoTyped<SoTrack, SoNode>;
