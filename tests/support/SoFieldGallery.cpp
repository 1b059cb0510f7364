// SPDX-License-Identifier: MIT
#include "SoFieldGallery.h"

#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoFieldGallery, SoNode>;

namespace
{

[[maybe_unused]] const SoType registered = SoFieldGallery::getClassTypeId();

} // namespace

SoFieldGallery::SoFieldGallery()
{
    static constexpr unsigned char Pixels[] = {255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255};
    sfImage.setValue(2, 2, 3, Pixels);
    sfImage.setDefault(true);
}

SoEnumTablePtr SoFieldGallery::seasons()
{
    static const auto table = std::make_shared<const SoEnumTable>(SoEnumTable{
        {"SPRING", SPRING},
        {"SUMMER", SUMMER},
        {"AUTUMN", AUTUMN},
        {"WINTER", WINTER},
    });
    return table;
}

SoEnumTablePtr SoFieldGallery::sides()
{
    static const auto table = std::make_shared<const SoEnumTable>(SoEnumTable{
        {"LEFT", LEFT},
        {"RIGHT", RIGHT},
        {"TOP", TOP},
        {"BOTTOM", BOTTOM},
    });
    return table;
}
