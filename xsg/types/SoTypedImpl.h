// SPDX-License-Identifier: MIT
// The bodies of SoTyped; include it in the one source file that instantiates a class's SoTyped.
#pragma once

#include <xsg/types/SoTyped.h>

#include <type_traits>

namespace xsg
{

/// Asks for `new T`, since std::is_default_constructible also asks for a public destructor, which nodes do
/// not have.
template <class T, class = void>
constexpr bool canBeMade = false;
template <class T>
constexpr bool canBeMade<T, std::void_t<decltype(new T)>> = !std::is_abstract_v<T>;

template <class T>
constexpr SoType::Factory factoryOf()
{
    if constexpr (canBeMade<T>)
        return [] { return static_cast<SoTypedObject*>(new T); };
    else
        return nullptr;
}

} // namespace xsg

template <class Self, class Base>
SoType SoTyped<Self, Base>::getClassTypeId()
{
    static const SoType type =
        SoType::createType(Base::getClassTypeId(), Self::ClassName, xsg::factoryOf<Self>());
    return type;
}

template <class Self, class Base>
SoType SoTyped<Self, Base>::getTypeId() const
{
    return getClassTypeId();
}
