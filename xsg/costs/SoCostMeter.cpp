// SPDX-License-Identifier: MIT
#include <xsg/costs/SoCostMeter.h>

#include <xsg/frames/SoFrameStatistics.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <algorithm>

namespace
{

constexpr double LeastShare = 0.03; // of the whole: what takes less is not looked into
constexpr std::size_t MostChildren = 32;
constexpr int MostHidden = 32;
constexpr std::int64_t FewTriangles = 200; // not worth hiding

// What drawing it takes, roughly, however busy the machine is.
double weightOf(const SoBranchCost& branch)
{
    return static_cast<double>(branch.triangles + 500 * branch.shapes);
}

// In milliseconds, of what is known.
SoFrameSummary summaryOf(const std::vector<SoFrame>& frames, SoFrame::Figure figure)
{
    std::vector<double> times;
    for (const SoFrame& frame : frames) {
        if (frame[figure] != SoFrame::Unknown)
            times.push_back(static_cast<double>(frame[figure]) * 1e-6);
    }
    return SoFrameSummary::of(std::move(times));
}

} // namespace

SoCostMeter::SoCostMeter(SoNode* root, const SoCamera* camera, int width, int height,
                         const SoFittingImageReader& reader, const SoHiding& hiding)
    : m_root(root)
    , m_hiding(hiding)
    , m_pictures(root, camera, width, height, reader, hiding)
    , m_costs(countCosts(root, reader, &hiding))
{
    m_numAsked = 2;
}

double SoCostMeter::getProgress() const
{
    return m_stage == Stage::Done ? 1 : static_cast<double>(m_numDone) / std::max(1, m_numAsked);
}

bool SoCostMeter::step()
{
    if (m_stage == Stage::Done || m_costs.branches.empty())
        return false;
    const bool isLast = m_pictures.getNumDrawn() == Pictures + 1;
    if (!m_pictures.draw(isLast)) {
        m_stage = Stage::Done;
        return false;
    }
    if (isLast || m_stage == Stage::Unseen)
        finishOne();
    return m_stage != Stage::Done;
}

void SoCostMeter::finishOne()
{
    ++m_numDone;
    const std::vector<unsigned char>& picture = m_pictures.getPixels().rgba;
    if (m_stage == Stage::Unseen)
        m_costs.branches[static_cast<std::size_t>(m_branch)].isUnseen = picture == m_whole;
    else
        finishPart();
    if (m_stage == Stage::Whole)
        m_whole = picture;
    next();
}

void SoCostMeter::finishPart()
{
    const std::vector<SoFrame> frames = m_pictures.getFrames();
    const SoFrameSummary byProcessor = summaryOf(frames, SoFrame::Whole);
    const SoFrameSummary byGraphics = summaryOf(frames, SoFrame::Gpu);
    if (m_stage == Stage::Empty) {
        m_emptyProcessor = byProcessor.median;
        m_emptyGraphics = byGraphics.median;
        m_costs.emptyPicture = std::max(m_emptyProcessor, m_emptyGraphics);
        return;
    }
    SoBranchCost& branch = m_costs.branches[static_cast<std::size_t>(m_branch)];
    branch.isMeasured = true;
    branch.processor = byProcessor.median - m_emptyProcessor;
    branch.graphics = byGraphics.median > 0 ? byGraphics.median - m_emptyGraphics : -1;
    branch.spread = std::max(byProcessor.spread, byGraphics.spread);
    branch.drawCalls = frames.empty() ? 0 : frames.back()[SoFrame::DrawCalls];
    branch.pixels = m_pictures.getNumPixels();
}

void SoCostMeter::next()
{
    SoBranchCost& root = m_costs.branches.front();
    if (m_stage == Stage::Whole) {
        m_stage = Stage::Empty;
        m_pictures.hide(m_root.get());
        return;
    }
    if (m_stage == Stage::Empty) { // the whole was measured without knowing what is empty
        root.processor = std::max(0.0, root.processor - m_emptyProcessor);
        root.graphics = root.graphics < 0 ? -1 : std::max(0.0, root.graphics - m_emptyGraphics);
        m_stage = Stage::Parts;
        addParts(0);
    } else if (m_stage == Stage::Parts) {
        const SoBranchCost& branch = m_costs.branches[static_cast<std::size_t>(m_branch)];
        // Measured times alone would leave it to chance in quick scenes.
        if (branch.getTime() >= LeastShare * root.getTime() ||
            weightOf(branch) >= LeastShare * weightOf(root))
            addParts(m_branch);
    }
    if (m_stage == Stage::Parts && m_waiting.empty()) {
        sumUp();
        m_stage = Stage::Unseen;
        findPartsToHide();
    }
    show();
}

// Takes the next branch up, alone or left out of the whole.
void SoCostMeter::show()
{
    if (m_waiting.empty()) {
        m_stage = Stage::Done;
        return;
    }
    m_branch = m_waiting.front();
    m_waiting.pop_front();
    const SoNode* node = m_costs.branches[static_cast<std::size_t>(m_branch)].node.get();
    if (m_stage == Stage::Unseen)
        m_pictures.hide(node);
    else
        m_pictures.isolate(seenOf(m_branch));
}

// The branch, or those below it that alone are seen.
std::vector<const SoNode*> SoCostMeter::seenOf(int branch) const
{
    const auto at = [this](int i) -> const SoBranchCost& {
        return m_costs.branches[static_cast<std::size_t>(i)];
    };
    const auto isBelow = [&](int i, const auto& isTop) {
        while (i >= 0 && !isTop(i))
            i = at(i).parent;
        return i >= 0;
    };
    const auto isIsolated = [&](int i) { return m_hiding.isIsolated(at(i).node.get()); };
    if (!m_hiding.isIsolating() || isBelow(branch, isIsolated))
        return {at(branch).node.get()};
    std::vector<const SoNode*> seen;
    for (int i = branch; i < static_cast<int>(m_costs.branches.size()); ++i) {
        if (isIsolated(i) && isBelow(i, [branch](int each) { return each == branch; }))
            seen.push_back(at(i).node.get());
    }
    if (seen.empty()) // it is counted where it stands elsewhere
        seen.push_back(at(branch).node.get());
    return seen;
}

// The heaviest of the branch's children that draw something.
void SoCostMeter::addParts(int branch)
{
    std::vector<int> children;
    for (std::size_t i = 0; i < m_costs.branches.size(); ++i) {
        if (m_costs.branches[i].parent == branch && m_costs.branches[i].shapes > 0)
            children.push_back(static_cast<int>(i));
    }
    const auto weight = [this](int i) { return weightOf(m_costs.branches[static_cast<std::size_t>(i)]); };
    std::stable_sort(children.begin(), children.end(), [&](int a, int b) { return weight(a) > weight(b); });
    children.resize(std::min(children.size(), MostChildren));
    for (const int child : children) {
        if (m_numAsked < MostBranches) {
            m_waiting.push_back(child);
            ++m_numAsked;
        }
    }
}

void SoCostMeter::findPartsToHide()
{
    int count = 0;
    for (std::size_t i = 1; i < m_costs.branches.size(); ++i) {
        const SoBranchCost& branch = m_costs.branches[i];
        if (branch.isMeasured && branch.triangles >= FewTriangles && count++ < MostHidden)
            m_waiting.push_back(static_cast<int>(i));
    }
    m_numAsked += static_cast<int>(m_waiting.size());
}

void SoCostMeter::sumUp()
{
    std::vector<bool> containsMeasured(m_costs.branches.size());
    for (std::size_t i = m_costs.branches.size(); i-- > 1;) {
        const SoBranchCost& branch = m_costs.branches[i];
        if (branch.isMeasured && !containsMeasured[i])
            m_costs.sumOfParts += branch.getTime();
        if (branch.parent >= 0 && (branch.isMeasured || containsMeasured[i]))
            containsMeasured[static_cast<std::size_t>(branch.parent)] = true;
    }
}
