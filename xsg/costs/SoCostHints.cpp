// SPDX-License-Identifier: MIT
#include <xsg/costs/SoCosts.h>

#include <xsg/core/SoField.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>

#include <algorithm>
#include <map>

namespace
{

// What common graphics cards and drivers take, roughly, in milliseconds.
constexpr double PerTriangle = 1e-5;
constexpr double PerShape = 5e-3;
constexpr double PerMegabyte = 0.05; // of pictures, which have to be moved and read

constexpr double LargeShare = 0.25;
constexpr std::int64_t ManyTriangles = 10'000;
constexpr std::int64_t ManyShapes = 500;
constexpr std::int64_t ManyEqual = 20;
constexpr std::int64_t LargeBytes = 16 << 20;

std::string number(std::int64_t value)
{
    std::string text = std::to_string(value);
    for (auto place = static_cast<std::ptrdiff_t>(text.size()) - 3; place > 0; place -= 3)
        text.insert(static_cast<std::size_t>(place), ",");
    return text;
}

std::string megabytes(std::int64_t bytes)
{
    return number((bytes + 500'000) / 1'000'000) + " MB";
}

std::string percent(double share)
{
    return std::to_string(static_cast<int>(share * 100 + 0.5)) + " %";
}

class HintFinder
{
public:
    HintFinder(const SoCosts& costs, int width, int height)
        : m_costs(costs)
        , m_width(width)
        , m_height(height)
    {
    }
    std::vector<SoCostHint> find()
    {
        if (m_costs.branches.empty())
            return {};
        for (std::size_t i = 0; i < m_costs.branches.size(); ++i) {
            const SoBranchCost& branch = m_costs.branches[i];
            lookAtPicture(branch);
            if (isSmallest(i, &SoBranchCost::smallShapes, ManyShapes))
                lookAtShapes(branch);
            if (isSmallest(i, &SoBranchCost::triangles, ManyTriangles))
                lookAtTriangles(branch);
            if (branch.isUnseen && !isBelowUnseen(branch))
                addUnseen(branch);
        }
        findEqual<SoMaterial>(SoCostHint::EqualMaterials,
                              "materials are equal; one could serve all of them.");
        findEqual<SoPoints>(SoCostHint::EqualMeshes,
                            "lists of points are equal; one could serve all of them.");
        std::stable_sort(m_hints.begin(), m_hints.end(),
                         [](const SoCostHint& a, const SoCostHint& b) { return a.weight > b.weight; });
        return std::move(m_hints);
    }

private:
    const SoBranchCost& root() const { return m_costs.branches.front(); }

    bool isBelowUnseen(const SoBranchCost& branch) const
    {
        return branch.parent >= 0 && m_costs.branches[static_cast<std::size_t>(branch.parent)].isUnseen;
    }
    bool isLarge(const SoBranchCost& branch, std::int64_t SoBranchCost::*count, std::int64_t many) const
    {
        return branch.*count >= many &&
               static_cast<double>(branch.*count) >= LargeShare * static_cast<double>(root().*count);
    }
    // Whether it has a large part of the whole, and nothing below it has one too.
    bool isSmallest(std::size_t place, std::int64_t SoBranchCost::*count, std::int64_t many) const
    {
        const auto& branches = m_costs.branches;
        return place > 0 && isLarge(branches[place], count, many) &&
               std::none_of(branches.begin() + static_cast<std::ptrdiff_t>(place), branches.end(),
                            [&](const SoBranchCost& other) {
                                return other.parent == static_cast<int>(place) && isLarge(other, count, many);
                            });
    }
    void add(SoCostHint::Kind kind, const SoBranchCost& branch, double weight, std::string sentence)
    {
        m_hints.push_back({kind, branch.node, weight, std::move(sentence)});
    }
    void lookAtPicture(const SoBranchCost& branch)
    {
        const std::int64_t pixels = std::int64_t{branch.pictureWidth} * branch.pictureHeight;
        const bool isLarger = pixels > 2 * std::int64_t{m_width} * m_height;
        if (pixels == 0 || !isLarger || branch.pictureBytes < LargeBytes)
            return;
        const double share = static_cast<double>(branch.pictureBytes) /
                             static_cast<double>(std::max<std::int64_t>(root().pictureBytes, 1));
        add(SoCostHint::LargePicture, branch, PerMegabyte * static_cast<double>(branch.pictureBytes) / 1e6,
            "Its picture has " + number(branch.pictureWidth) + " × " + number(branch.pictureHeight) +
                " pixels, more than the view's " + number(m_width) + " × " + number(m_height) +
                ", and takes " + megabytes(branch.pictureBytes) + ", " + percent(share) +
                " of all pictures; a smaller one would look the same.");
    }
    void lookAtShapes(const SoBranchCost& branch)
    {
        add(SoCostHint::SmallShapes, branch, PerShape * static_cast<double>(branch.smallShapes),
            number(branch.smallShapes) + " bodies with fewer than 100 triangles are below it, " +
                percent(static_cast<double>(branch.smallShapes) / static_cast<double>(root().shapes)) +
                " of all bodies; joined to one, they would be drawn at once.");
    }
    void lookAtTriangles(const SoBranchCost& branch)
    {
        const double share = static_cast<double>(branch.triangles) /
                             static_cast<double>(std::max<std::int64_t>(root().triangles, 1));
        add(SoCostHint::ManyTriangles, branch, PerTriangle * static_cast<double>(branch.triangles),
            "It has " + percent(share) + " of all triangles, " + number(branch.triangles) + " of " +
                number(root().triangles) +
                (branch.hasLevels ? "." : "; levels of detail would draw fewer from far away."));
    }
    void addUnseen(const SoBranchCost& branch)
    {
        add(SoCostHint::Unseen, branch,
            branch.getTime() + PerTriangle * static_cast<double>(branch.triangles),
            "It is drawn, " + number(branch.triangles) +
                " triangles, and the picture is the same without it; hide it, or cut what is behind others.");
    }
    template <class Node>
    void findEqual(SoCostHint::Kind kind, const char* what)
    {
        std::map<std::string, std::vector<const SoBranchCost*>> all;
        for (const SoBranchCost& branch : m_costs.branches) {
            if (branch.node->isOfType(Node::getClassTypeId()) && textOf(*branch.node).size() < 100'000)
                all[textOf(*branch.node)].push_back(&branch);
        }
        for (const auto& [text, equal] : all) {
            const auto count = static_cast<std::int64_t>(equal.size());
            if (count >= ManyEqual)
                add(kind, *equal.front(), 0.01 * PerShape * static_cast<double>(count),
                    number(count) + " " + what);
        }
    }
    static std::string textOf(const SoNode& node)
    {
        std::string text;
        const SoFieldData* data = node.getFieldData();
        for (const SoField* field = data->getField(&node, 0); field; field = data->getNext(field)) {
            SbString value;
            field->get(value);
            text += value.str();
            text += '\n';
        }
        return text;
    }

    const SoCosts& m_costs;
    const int m_width;
    const int m_height;
    std::vector<SoCostHint> m_hints;
};

} // namespace

std::vector<SoCostHint> findCostHints(const SoCosts& costs, int pictureWidth, int pictureHeight)
{
    return HintFinder(costs, pictureWidth, pictureHeight).find();
}
