// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoPreferences.h>
#include <xsg/render/SoImageReader.h>
#include <xsg/values/SbSentence.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

namespace xsg
{

/// The memory that the pictures of a scene may take together. A picture that does not fit into what is left
/// is brought down, by halves, to at most half of that, so that something remains for those after it; a
/// picture of which less than a few pixels would remain is left out.
class PictureBudget
{
public:
    static constexpr std::int64_t MiB = 1 << 20;
    static constexpr int Least = 8; // pixels along the longer side of what is brought down

    explicit PictureBudget(std::int64_t bytes)
        : m_bytes(bytes)
    {
    }
    /// What the preference XSG_PICTURE_MEMORY says, in MiB; 512 without it.
    static PictureBudget preferred()
    {
        constexpr int Usual = 512;
        return PictureBudget(MiB * std::max(0, SoPreferences::getInt("XSG_PICTURE_MEMORY", Usual)));
    }

    static std::int64_t bytesOf(const SoImageSize& size, int bytesPerPixel)
    {
        // Two sides can announce more than any number of bytes counts.
        const std::int64_t pixels = std::int64_t{size.width} * size.height;
        constexpr std::int64_t Most = std::numeric_limits<std::int64_t>::max();
        return pixels > Most / bytesPerPixel ? Most : pixels * bytesPerPixel;
    }
    std::int64_t getBytes() const { return m_bytes; }
    std::int64_t getLeft() const { return m_bytes - m_taken; }
    void take(std::int64_t bytes) { m_taken += bytes; }
    void giveBack(std::int64_t bytes) { m_taken -= bytes; }

    /// No side of the answer is longer than `mostSide`.
    SoImageSize fit(const SoImageSize& size, int bytesPerPixel, int mostSide) const
    {
        SoImageSize fitting = size;
        while (std::max(fitting.width, fitting.height) > mostSide)
            fitting = halved(fitting);
        if (fitting.isEmpty() || bytesOf(fitting, bytesPerPixel) <= getLeft())
            return fitting;
        while (bytesOf(fitting, bytesPerPixel) > getLeft() / 2) {
            fitting = halved(fitting);
            if (std::max(fitting.width, fitting.height) < Least)
                return {};
        }
        return fitting;
    }
    static SoImageSize halved(const SoImageSize& size)
    {
        return {std::max(1, size.width / 2), std::max(1, size.height / 2)};
    }

private:
    std::int64_t m_bytes;
    std::int64_t m_taken = 0;
};

/// One sentence about a picture that could not be as large as it is. An empty `fitted`: it was left out.
XSG_API SbSentence describeFit(const std::string& name, const SoImageSize& size, const SoImageSize& fitted,
                               const PictureBudget& budget, int mostSide);

} // namespace xsg
