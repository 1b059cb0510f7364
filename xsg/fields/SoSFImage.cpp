// SPDX-License-Identifier: MIT
#include <xsg/fields/SoSFImage.h>

#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/SbValueText.h>

template class SoTyped<SoSFImage, SoSField>;

namespace
{

constexpr int MaxComponents = 4;

void writePixel(std::string& out, const unsigned char* bytes, int components)
{
    static constexpr char Digits[] = "0123456789abcdef";
    out += " 0x";
    for (int i = 0; i < components; ++i) {
        out += Digits[bytes[i] >> 4];
        out += Digits[bytes[i] & 15];
    }
}

} // namespace

const unsigned char* SoSFImage::getValue(int& width, int& height, int& components) const
{
    evaluate();
    width = m_image.width;
    height = m_image.height;
    components = m_image.components;
    return m_image.bytes.empty() ? nullptr : m_image.bytes.data();
}

void SoSFImage::setValue(int width, int height, int components, const unsigned char* bytes)
{
    Image image;
    if (width >= 0 && height >= 0 && components >= 0 && components <= MaxComponents) {
        image.width = width;
        image.height = height;
        image.components = components;
        if (bytes)
            image.bytes.assign(bytes, bytes + image.pixelCount() * static_cast<std::size_t>(components));
    }
    aboutToWrite();
    m_image = std::move(image);
    valueWritten();
}

void SoSFImage::get(SbString& text) const
{
    evaluate();
    std::string& out = text.edit();
    out.clear();
    const int head[3] = {m_image.width, m_image.height, m_image.components};
    xsg::NumbersText<int, 3>::write(out, head);
    const auto step = static_cast<std::size_t>(m_image.components);
    for (std::size_t at = 0; step > 0 && at + step <= m_image.bytes.size(); at += step)
        writePixel(out, m_image.bytes.data() + at, m_image.components);
}

bool SoSFImage::read(std::string_view text, Image& image)
{
    xsg::TextReader in(text);
    int head[3];
    if (!xsg::NumbersText<int, 3>::read(in, head) || head[0] < 0 || head[1] < 0 || head[2] < 0 ||
        head[2] > MaxComponents)
        return false;
    image.width = head[0];
    image.height = head[1];
    image.components = head[2];
    while (!in.onlyBlanksLeft()) {
        unsigned pixel = 0;
        if (!in.readNumber(pixel) || image.components == 0 ||
            (image.components < MaxComponents && pixel >> (8 * image.components)))
            return false;
        for (int i = image.components - 1; i >= 0; --i)
            image.bytes.push_back(static_cast<unsigned char>(pixel >> (8 * i)));
    }
    // Sizes without any data are kept: that is how an absent picture of a known size reads.
    const std::size_t expected = image.pixelCount() * static_cast<std::size_t>(image.components);
    return image.bytes.empty() || image.bytes.size() == expected;
}

bool SoSFImage::parse(std::string_view text)
{
    Image image;
    if (!read(text, image))
        return false;
    m_image = std::move(image);
    return true;
}

bool SoSFImage::isSame(const SoField& other) const
{
    if (other.getTypeId() != getTypeId())
        return false;
    evaluate();
    other.evaluate();
    const Image& image = static_cast<const SoSFImage&>(other).m_image;
    return m_image.width == image.width && m_image.height == image.height &&
           m_image.components == image.components && m_image.bytes == image.bytes;
}

void SoSFImage::assign(const SoField& sameType)
{
    m_image = static_cast<const SoSFImage&>(sameType).m_image;
}
