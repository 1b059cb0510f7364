// SPDX-License-Identifier: MIT
#include "Extras.h"

#include <osg/Image>
#include <osg/Texture>

namespace scopix::live
{

namespace
{

/// Bytes a pixel of a picture that an inspector can show and change; 0 of any other.
unsigned plainComponents(const osg::Image& image)
{
    const bool plain = image.getDataType() == GL_UNSIGNED_BYTE && image.r() == 1 && image.data() &&
                       (image.getRowLength() == 0 || image.getRowLength() == image.s());
    const unsigned components = osg::Image::computeNumComponents(image.getPixelFormat());
    const bool known = image.getPixelFormat() != GL_BGR && image.getPixelFormat() != GL_BGRA;
    return plain && known && components >= 1 && components <= 4 && !image.isCompressed() ? components : 0;
}

std::optional<Value> pixelsOf(const osg::Image& image)
{
    const unsigned components = plainComponents(image);
    if (components == 0)
        return std::nullopt;
    const std::size_t row = std::size_t(image.s()) * components;
    std::vector<std::uint8_t> pixels;
    for (int y = 0; y < image.t(); ++y)
        pixels.insert(pixels.end(), image.data(0, y), image.data(0, y) + row);
    return packedImage(unsigned(image.s()), unsigned(image.t()), components, pixels.data());
}

std::string writePixels(osg::Image& image, const Value& value)
{
    const std::optional<Value> present = pixelsOf(image);
    if (!present || present->bytes.size() != value.bytes.size() ||
        !std::equal(present->bytes.begin(), present->bytes.begin() + 12, value.bytes.begin()))
        return Sentence("The pixels of this picture take another one of %1 × %2 pixels only, with as many "
                        "components.",
                        {std::to_string(image.s()), std::to_string(image.t())});
    const std::size_t row = std::size_t(image.s()) * plainComponents(image);
    for (int y = 0; y < image.t(); ++y)
        std::copy_n(value.bytes.data() + 12 + std::size_t(y) * row, row, image.data(0, y));
    image.dirty();
    return {};
}

} // namespace

void addTexture(OsgProperties& properties, const osg::Object& object)
{
    using T = osg::Texture;
    const std::vector<NamedNumber> wraps{{"CLAMP", T::CLAMP},
                                         {"CLAMP_TO_EDGE", T::CLAMP_TO_EDGE},
                                         {"CLAMP_TO_BORDER", T::CLAMP_TO_BORDER},
                                         {"REPEAT", T::REPEAT},
                                         {"MIRROR", T::MIRROR}};
    const std::vector<NamedNumber> filters{{"NEAREST", T::NEAREST},
                                           {"LINEAR", T::LINEAR},
                                           {"NEAREST_MIPMAP_NEAREST", T::NEAREST_MIPMAP_NEAREST},
                                           {"LINEAR_MIPMAP_NEAREST", T::LINEAR_MIPMAP_NEAREST},
                                           {"NEAREST_MIPMAP_LINEAR", T::NEAREST_MIPMAP_LINEAR},
                                           {"LINEAR_MIPMAP_LINEAR", T::LINEAR_MIPMAP_LINEAR}};
    const std::pair<const char*, T::WrapParameter> directions[] = {
        {"WRAP_S", T::WRAP_S}, {"WRAP_T", T::WRAP_T}, {"WRAP_R", T::WRAP_R}};
    Extras<T> extras(properties, object);
    for (const auto& [name, which] : directions) {
        const T::WrapParameter direction = which;
        extras.choice(
            named(name, "What lies beside the picture in this direction."), wraps,
            [direction](T& t) { return int(t.getWrap(direction)); },
            [direction](T& t, int wrap) { t.setWrap(direction, T::WrapMode(wrap)); });
    }
    extras
        .choice(
            named("MIN_FILTER", "How the picture is read where it is drawn smaller."), filters,
            [](T& t) { return int(t.getFilter(T::MIN_FILTER)); },
            [](T& t, int filter) { t.setFilter(T::MIN_FILTER, T::FilterMode(filter)); })
        .choice(
            named("MAG_FILTER", "How the picture is read where it is drawn larger."),
            {filters[0], filters[1]}, [](T& t) { return int(t.getFilter(T::MAG_FILTER)); },
            [](T& t, int filter) { t.setFilter(T::MAG_FILTER, T::FilterMode(filter)); });
}

void addImage(OsgProperties& properties, const osg::Object& object)
{
    using I = osg::Image;
    Extras<I>(properties, object)
        .call(
            named("Pixels", "The picture itself, bottom row first.", ValueKind::Image),
            [](I& image, OsgObjects&) { return pixelsOf(image); },
            [](I& image, const Value& value, OsgObjects&) { return writePixels(image, value); })
        .call(
            named("Width", "In pixels.", ValueKind::Int32),
            [](I& image, OsgObjects&) { return packedAs(image.s()); }, nullptr)
        .call(
            named("Height", "In pixels.", ValueKind::Int32),
            [](I& image, OsgObjects&) { return packedAs(image.t()); }, nullptr);
}

} // namespace scopix::live
