// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoSField.h>

/// A picture: width x height pixels of 1 to 4 bytes, rows from the bottom up, no padding.
/// Its text is "width height components", then each pixel as one hexadecimal number; "0 0 0" is the empty
/// picture.
class XSG_API SoSFImage : public SoTyped<SoSFImage, SoSField>
{
public:
    static constexpr const char* ClassName = "SFImage";

    SoSFImage() = default;
    SoSFImage(SoFieldContainer* owner, const char* name)
        : SoTyped(owner, name)
    {
    }

    /// The bytes, or null when there are none; sizes in pixels.
    const unsigned char* getValue(int& width, int& height, int& components) const;
    /// Copies the bytes; a null pointer keeps the sizes without data. Negative sizes, or more than 4
    /// components, make the picture empty.
    void setValue(int width, int height, int components, const unsigned char* bytes);

    void get(SbString& text) const override;
    bool isSame(const SoField& other) const override;

protected:
    bool parse(std::string_view text) override;
    void assign(const SoField& sameType) override;

private:
    struct Image {
        int width = 0;
        int height = 0;
        int components = 0;
        std::vector<unsigned char> bytes;
        std::size_t pixelCount() const
        {
            return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
        }
    };
    static bool read(std::string_view text, Image& image);

    Image m_image;
};

extern template class SoTyped<SoSFImage, SoSField>;
