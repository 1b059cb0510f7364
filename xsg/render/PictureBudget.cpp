// SPDX-License-Identifier: MIT
#include <xsg/render/PictureBudget.h>

namespace
{

std::string text(const SoImageSize& size)
{
    return std::to_string(size.width) + " × " + std::to_string(size.height);
}

} // namespace

SbSentence xsg::describeFit(const std::string& name, const SoImageSize& size, const SoImageSize& fitted,
                            const PictureBudget& budget, int mostSide)
{
    const std::string whole = text(size);
    if (std::max(size.width, size.height) > mostSide)
        return fitted.isEmpty()
                   ? SbSentence("The picture “%1” of %2 pixels is left out, as here no side can have more "
                                "than %3.",
                                name, whole, mostSide)
                   : SbSentence("The picture “%1” of %2 pixels is brought down to %3 pixels, as here no side "
                                "can have more than %4.",
                                name, whole, text(fitted), mostSide);
    const std::int64_t most = budget.getBytes() / PictureBudget::MiB;
    return fitted.isEmpty()
               ? SbSentence("The picture “%1” of %2 pixels is left out, as all pictures of a scene may take "
                            "%3 MiB together (XSG_PICTURE_MEMORY in the preferences).",
                            name, whole, most)
               : SbSentence("The picture “%1” of %2 pixels is brought down to %3 pixels, as all pictures of "
                            "a scene may take %4 MiB together (XSG_PICTURE_MEMORY in the preferences).",
                            name, whole, text(fitted), most);
}
