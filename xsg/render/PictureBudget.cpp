// SPDX-License-Identifier: MIT
#include <xsg/render/PictureBudget.h>

namespace
{

std::string text(const SoImageSize& size)
{
    return std::to_string(size.width) + " \xC3\x97 " + std::to_string(size.height);
}

} // namespace

std::string xsg::describeFit(const std::string& name, const SoImageSize& size, const SoImageSize& fitted,
                             const PictureBudget& budget, int mostSide)
{
    const std::string what =
        fitted.isEmpty() ? "is left out" : "is brought down to " + text(fitted) + " pixels";
    const std::string why = std::max(size.width, size.height) > mostSide
                                ? "here no side can have more than " + std::to_string(mostSide)
                                : "all pictures of a scene may take " +
                                      std::to_string(budget.getBytes() / PictureBudget::MiB) +
                                      " MiB together (XSG_PICTURE_MEMORY in the preferences)";
    return "The picture \xE2\x80\x9C" + name + "\xE2\x80\x9D of " + text(size) + " pixels " + what + ", as " +
           why + ".";
}
