// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <vector>

/// What many numbers say together. All 0 of none.
struct XSG_API SoFrameSummary {
    double mean = 0;
    double median = 0;
    double percent95 = 0; // of the numbers are not above it
    double percent99 = 0;
    double longest = 0;
    double spread = 0; // half of the numbers are this near to the median

    static SoFrameSummary of(std::vector<double> numbers);
};

/// Whether two sets of numbers differ by more than chance, by the test of Mann and Whitney, which looks at
/// their order only: a few very slow frames do not decide it.
struct XSG_API SoFrameComparison {
    double before = 0; // medians
    double after = 0;
    /// How probable so large a difference is where nothing has changed, from 0 to 1; 1 for fewer than 8
    /// numbers on a side, of which nothing can be said.
    double chance = 1;

    static SoFrameComparison of(const std::vector<double>& before, const std::vector<double>& after);

    /// As a share of `before`; 0 where that is 0.
    double getChange() const { return before > 0 ? after / before - 1 : 0; }
    /// Less probable by chance than one in a hundred.
    bool isSignificant() const { return chance < 0.01; }
};
