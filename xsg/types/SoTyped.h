// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/types/SoTypedObject.h>

#include <utility>

/// Gives a class its run-time type:
///
///     class SoSphere : public SoTyped<SoSphere, SoShape> {
///     public:
///         static constexpr const char* ClassName = "Sphere";
///         ...
///     };
///     extern template class SoTyped<SoSphere, SoShape>;      // at the end of the header
///
///     #include <xsg/types/SoTypedImpl.h>                      // in the one .cpp
///     template class SoTyped<SoSphere, SoShape>;
///
/// The type's name is the class's name without "So". A class that can be default-constructed can be created
/// by name.
template <class Self, class Base>
class XSG_API SoTyped : public Base
{
public:
    using Base::Base;
    static SoType getClassTypeId();
    SoType getTypeId() const override;
};
