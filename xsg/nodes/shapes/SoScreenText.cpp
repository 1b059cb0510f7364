// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoScreenText.h>

#include <xsg/nodes/shapes/BitmapFont.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <cmath>

template class SoTyped<SoScreenText, SoShape>;

namespace
{

constexpr int RowsPerLine = 10;
constexpr int CellWidth = 6;

void addRectangle(SoGeometry& g, float x, float y, float width, float height)
{
    const auto first = static_cast<std::uint32_t>(g.points.size());
    g.points.insert(g.points.end(),
                    {{x, y, 0}, {x + width, y, 0}, {x + width, y + height, 0}, {x, y + height, 0}});
    g.index.insert(g.index.end(), {first, first + 1, first + 2, first, first + 2, first + 3});
}

// Each row of a letter as the rectangles that its neighbouring dots make.
void addLetter(SoGeometry& g, const unsigned char* rows, float x, float top, float dot)
{
    for (int row = 0; row < xsg::DotFontRows; ++row) {
        const float y = top - static_cast<float>(row + 1) * dot;
        for (int column = 0; column < xsg::DotFontColumns;) {
            const int start = column;
            while (column < xsg::DotFontColumns && (rows[row] >> (xsg::DotFontColumns - 1 - column) & 1))
                ++column;
            if (column > start)
                addRectangle(g, x + static_cast<float>(start) * dot, y,
                             static_cast<float>(column - start) * dot, dot);
            else
                ++column;
        }
    }
}

} // namespace

SoEnumTablePtr SoScreenText::getJustificationNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"LEFT", Left}, {"CENTER", Center}, {"RIGHT", Right}});
    return names;
}

void SoScreenText::generate(const SoState& /*state*/, SoGeometry& g) const
{
    g.isScreenSpace = true;
    // Whole pixels per dot keep letters even.
    const float dot = std::clamp(std::round(size.getValue() / RowsPerLine), 1.0F, 100.0F);
    for (int i = 0; i < lines.getNum(); ++i) {
        const std::u16string letters = lines[i].toUtf16();
        const float width = static_cast<float>(letters.size()) * CellWidth * dot;
        float x = std::floor(-width * 0.5F * static_cast<float>(std::clamp(justification.getValue(), 0, 2)));
        const float top = static_cast<float>(xsg::DotFontRows - i * RowsPerLine) * dot;
        for (const char16_t letter : letters) {
            addLetter(g, xsg::dotLetter(letter), x, top, dot);
            x += CellWidth * dot;
        }
    }
}

SoGeometryKey SoScreenText::getGeometryKey(const SoState& /*state*/) const
{
    SoGeometryKey key;
    key.add(getNodeId(), getChangeCount());
    return key;
}

SbBox3f SoScreenText::getBox(const SoState& /*state*/) const
{
    return lines.getNum() > 0 ? SbBox3f(0, 0, 0, 0, 0, 0) : SbBox3f();
}
