// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/costs/SoCostPictures.h>
#include <xsg/frames/SoFrameStatistics.h>

/// What a picture of a scene would take without one of its nodes, and all that is below that: measured, in
/// runs of pictures with it and without it in turn, so that a machine that slows down does not decide it. One
/// picture is drawn by each step(), as SoCostMeter does. On the scene's thread.
class XSG_API SoWhatIfMeter
{
public:
    /// As for SoCostPictures.
    SoWhatIfMeter(SoNode* root, const SoNode* without, const SoCamera* camera, int width, int height,
                  const SoFittingImageReader& reader = {}, const SoHiding& hiding = {});

    /// False when all is measured, or nothing can be drawn: getError() then says why.
    bool step();
    /// From 0 to 1.
    double getProgress() const;
    const SbSentence& getError() const { return m_pictures.getError(); }
    const std::string& getErrorText() const { return getError().getText(); }

    /// In milliseconds: what the processor or the graphics card took, whichever took longer.
    const std::vector<double>& getWith() const { return m_times[0]; }
    const std::vector<double>& getWithout() const { return m_times[1]; }
    /// Before: with it.
    SoFrameComparison compare() const { return SoFrameComparison::of(getWith(), getWithout()); }
    /// Half of all differences between a picture with it and one without are about this near to that of the
    /// medians.
    double getSpread() const;

    static constexpr int Runs = 4; // of each kind
    static constexpr int PicturesOfRun = 5;

private:
    void beginRun();
    void finishRun();

    SoRef<SoNode> m_without;
    SoCostPictures m_pictures;
    int m_run = 0;
    std::vector<double> m_times[2];
};
