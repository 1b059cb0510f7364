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

std::string filled(std::string text, const std::vector<std::string>& arguments)
{
    for (std::size_t i = 0; i < arguments.size(); ++i)
        text.replace(text.find('%' + std::to_string(i + 1)), 2, arguments[i]);
    return text;
}

// Marks what is translated where it is shown; nothing here knows Qt.
#define QT_TRANSLATE_NOOP(context, text) text

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
        findEqual<SoMaterial>(
            SoCostHint::EqualMaterials,
            QT_TRANSLATE_NOOP("CostHint", "%1 materials are equal; one could serve all of them."));
        findEqual<SoPoints>(
            SoCostHint::EqualMeshes,
            QT_TRANSLATE_NOOP("CostHint", "%1 lists of points are equal; one could serve all of them."));
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
    void add(SoCostHint::Kind kind, const SoBranchCost& branch, double weight, const char* pattern,
             std::vector<std::string> arguments)
    {
        m_hints.push_back({kind, branch.node, weight, filled(pattern, arguments), pattern, arguments});
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
            QT_TRANSLATE_NOOP("CostHint", "Its picture has %1 × %2 pixels, more than the view's %3 × %4, and "
                                          "takes %5, %6 of all pictures; a smaller one would look the same."),
            {number(branch.pictureWidth), number(branch.pictureHeight), number(m_width), number(m_height),
             megabytes(branch.pictureBytes), percent(share)});
    }
    void lookAtShapes(const SoBranchCost& branch)
    {
        add(SoCostHint::SmallShapes, branch, PerShape * static_cast<double>(branch.smallShapes),
            QT_TRANSLATE_NOOP("CostHint", "%1 bodies with fewer than 100 triangles are below it, %2 of all "
                                          "bodies; joined to one, they would be drawn at once."),
            {number(branch.smallShapes),
             percent(static_cast<double>(branch.smallShapes) / static_cast<double>(root().shapes))});
    }
    void lookAtTriangles(const SoBranchCost& branch)
    {
        const double share = static_cast<double>(branch.triangles) /
                             static_cast<double>(std::max<std::int64_t>(root().triangles, 1));
        add(SoCostHint::ManyTriangles, branch, PerTriangle * static_cast<double>(branch.triangles),
            branch.hasLevels ? QT_TRANSLATE_NOOP("CostHint", "It has %1 of all triangles, %2 of %3.")
                             : QT_TRANSLATE_NOOP(
                                   "CostHint", "It has %1 of all triangles, %2 of %3; levels of detail would "
                                               "draw fewer from far away."),
            {percent(share), number(branch.triangles), number(root().triangles)});
    }
    void addUnseen(const SoBranchCost& branch)
    {
        add(SoCostHint::Unseen, branch,
            branch.getTime() + PerTriangle * static_cast<double>(branch.triangles),
            QT_TRANSLATE_NOOP("CostHint",
                              "It is drawn, %1 triangles, and the picture is the same without it; "
                              "hide it, or cut what is behind others."),
            {number(branch.triangles)});
    }
    template <class Node>
    void findEqual(SoCostHint::Kind kind, const char* pattern)
    {
        std::map<std::string, std::vector<const SoBranchCost*>> all;
        for (const SoBranchCost& branch : m_costs.branches) {
            if (branch.node->isOfType(Node::getClassTypeId()) && textOf(*branch.node).size() < 100'000)
                all[textOf(*branch.node)].push_back(&branch);
        }
        for (const auto& [text, equal] : all) {
            const auto count = static_cast<std::int64_t>(equal.size());
            if (count >= ManyEqual)
                add(kind, *equal.front(), 0.01 * PerShape * static_cast<double>(count), pattern,
                    {number(count)});
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
