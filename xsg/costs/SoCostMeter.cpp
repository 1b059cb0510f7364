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

} // namespace

SoCostMeter::SoCostMeter(SoNode* root, const SoCamera* camera, int width, int height,
                         const SoFittingImageReader& reader)
    : m_root(root)
    , m_camera(const_cast<SoCamera*>(camera))
    , m_width(width)
    , m_height(height)
    , m_costs(countCosts(root, reader))
{
    m_log.addUser();
    m_log.setTimesEach(true);
    m_renderer.setSamples(1);
    m_renderer.getRenderer().setFrameLog(&m_log);
    m_renderer.getRenderer().setHiding(&m_hiding);
    if (reader)
        m_renderer.getRenderer().setFittingImageReader(reader);
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
    if (!draw()) {
        m_stage = Stage::Done;
        return false;
    }
    const bool isOnePicture = m_stage == Stage::Unseen;
    // One more, for the answers of the graphics card to the others.
    if (isOnePicture || ++m_drawn >= Pictures + 2)
        finishOne();
    return m_stage != Stage::Done;
}

bool SoCostMeter::draw()
{
    if (!m_renderer.render(m_root.get(), m_camera.get(), m_width, m_height, m_pixels))
        return false;
    m_frames.push_back(m_log.getLast());
    return true;
}

void SoCostMeter::finishOne()
{
    ++m_numDone;
    if (m_stage == Stage::Unseen)
        m_costs.branches[static_cast<std::size_t>(m_branch)].isUnseen = m_pixels.rgba == m_whole;
    else
        finishPart();
    if (m_stage == Stage::Whole)
        m_whole = m_pixels.rgba;
    m_frames.clear();
    m_drawn = 0;
    next();
}

void SoCostMeter::finishPart()
{
    std::vector<double> processor;
    std::vector<double> graphics;
    SoFrame frame;
    for (std::size_t i = 1; i + 1 < m_frames.size(); ++i) {
        if (!m_log.get(m_frames[i], frame))
            continue;
        processor.push_back(static_cast<double>(frame[SoFrame::Whole]) * 1e-6);
        if (frame[SoFrame::Gpu] != SoFrame::Unknown)
            graphics.push_back(static_cast<double>(frame[SoFrame::Gpu]) * 1e-6);
    }
    const SoFrameSummary byProcessor = SoFrameSummary::of(processor);
    const SoFrameSummary byGraphics = SoFrameSummary::of(graphics);
    if (m_stage == Stage::Empty) {
        m_emptyProcessor = byProcessor.median;
        m_emptyGraphics = byGraphics.median;
        m_costs.emptyPicture = std::max(m_emptyProcessor, m_emptyGraphics);
        return;
    }
    SoBranchCost& branch = m_costs.branches[static_cast<std::size_t>(m_branch)];
    branch.isMeasured = true;
    branch.processor = byProcessor.median - m_emptyProcessor;
    branch.graphics = graphics.empty() ? -1 : byGraphics.median - m_emptyGraphics;
    branch.spread = std::max(byProcessor.spread, byGraphics.spread);
    branch.drawCalls = frame[SoFrame::DrawCalls];
}

void SoCostMeter::next()
{
    SoBranchCost& root = m_costs.branches.front();
    if (m_stage == Stage::Whole) {
        m_stage = Stage::Empty;
        m_hiding.setHidden(m_root.get(), true);
        return;
    }
    if (m_stage == Stage::Empty) { // the whole was measured without knowing what is empty
        root.processor = std::max(0.0, root.processor - m_emptyProcessor);
        root.graphics = root.graphics < 0 ? -1 : std::max(0.0, root.graphics - m_emptyGraphics);
        m_hiding.clear();
        m_stage = Stage::Parts;
        addParts(0);
    } else if (m_stage == Stage::Parts) {
        const SoBranchCost& branch = m_costs.branches[static_cast<std::size_t>(m_branch)];
        if (branch.getTime() >= LeastShare * root.getTime())
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
    m_hiding.clear();
    m_hiding.isolate({});
    if (m_waiting.empty()) {
        m_stage = Stage::Done;
        return;
    }
    m_branch = m_waiting.front();
    m_waiting.pop_front();
    const SoNode* node = m_costs.branches[static_cast<std::size_t>(m_branch)].node.get();
    if (m_stage == Stage::Unseen)
        m_hiding.setHidden(node, true);
    else
        m_hiding.isolate({node});
}

// The heaviest of the branch's children that draw something.
void SoCostMeter::addParts(int branch)
{
    std::vector<int> children;
    for (std::size_t i = 0; i < m_costs.branches.size(); ++i) {
        if (m_costs.branches[i].parent == branch && m_costs.branches[i].shapes > 0)
            children.push_back(static_cast<int>(i));
    }
    const auto weight = [this](int i) {
        const SoBranchCost& each = m_costs.branches[static_cast<std::size_t>(i)];
        return each.triangles + 500 * each.shapes;
    };
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
