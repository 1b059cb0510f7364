// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrameRecording.h>
#include <xsg/values/SbSentence.h>

/// A recording as comma-separated values, for spreadsheets and scripts: lines "# key: value" about it and
/// "# mark TIME: text", one line of names, as in "Whole [ns]", and one line for each frame. What is not known
/// is an empty cell. A state's name ends in " (state)". Numbers as in C, whatever the locale.
class XSG_API SoFrameCsv
{
public:
    static std::string write(const SoFrameRecording& recording);
    /// False, and why, as a sentence's end, where a line does not fit.
    static bool read(std::string_view text, SoFrameRecording& recording, SbSentence& problem);
};
