// SPDX-License-Identifier: MIT
#include "text/ValueBytes.h"

#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/fields/SoSFString.h>

namespace scopix
{

std::size_t valueBytes(const SoField& field)
{
    std::size_t bytes = 0;
    if (const auto* values = dynamic_cast<const SoMField*>(&field))
        bytes += static_cast<std::size_t>(values->getNum()) * values->bytesPerValue();
    if (const auto* string = dynamic_cast<const SoSFString*>(&field))
        bytes += string->getValue().str().size();
    if (const auto* strings = dynamic_cast<const SoMFString*>(&field)) {
        for (int i = 0; i < strings->getNum(); ++i)
            bytes += (*strings)[i].str().size();
    }
    if (const auto* image = dynamic_cast<const SoSFImage*>(&field)) {
        int width = 0;
        int height = 0;
        int components = 0;
        if (image->getValue(width, height, components))
            bytes += static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                     static_cast<std::size_t>(components);
    }
    return bytes;
}

} // namespace scopix
