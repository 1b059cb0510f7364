// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/costs/SoCostPictures.h>
#include <xsg/costs/SoCosts.h>

#include <deque>

/// Measures what the branches of a scene cost, by drawing each of them alone, several times, in pictures of
/// its own. A branch is looked into where it takes, or draws, a good part of the whole. One picture is drawn
/// by each step(), so that a program stays alive meanwhile:
///
///     SoCostMeter meter(root, camera, 800, 600);
///     while (meter.step())
///         ...
///     use(meter.getCosts());
///
/// Where only some nodes are seen, the figures of a node that the scene contains elsewhere too are those of
/// all its places. The scene must not change meanwhile. On the scene's thread.
class XSG_API SoCostMeter
{
public:
    /// As for SoCostPictures. The scene is counted at once.
    SoCostMeter(SoNode* root, const SoCamera* camera, int width, int height,
                const SoFittingImageReader& reader = {}, const SoHiding& hiding = {});

    /// False when all is measured, or nothing can be drawn: getError() then says why.
    bool step();
    const SoCosts& getCosts() const { return m_costs; }
    const SbSentence& getError() const { return m_pictures.getError(); }
    const std::string& getErrorText() const { return getError().getText(); }
    /// From 0 to 1, roughly.
    double getProgress() const;

    static constexpr int Pictures = 5; // of each branch, after a first one that fills caches
    static constexpr int MostBranches = 200;

private:
    enum class Stage { Whole, Empty, Parts, Unseen, Done };
    void finishOne();
    void finishPart();
    void next();
    void addParts(int branch);
    void findPartsToHide();
    void sumUp();
    void show();
    std::vector<const SoNode*> seenOf(int branch) const;

    SoRef<SoNode> m_root;
    SoHiding m_hiding; // from the start
    SoCostPictures m_pictures;
    std::vector<unsigned char> m_whole; // the picture of all
    SoCosts m_costs;
    Stage m_stage = Stage::Whole;
    std::deque<int> m_waiting; // branches
    int m_branch = 0;          // that is drawn
    int m_numAsked = 0;
    int m_numDone = 0;
    double m_emptyProcessor = 0;
    double m_emptyGraphics = 0;
};
