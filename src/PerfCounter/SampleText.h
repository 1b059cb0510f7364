// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The value that was divided by the seconds to give a rate: the quantity of a state, the result of a
/// quotient. Empty where nothing is known.
QString undividedText(double rate, double seconds);
/// What a tool tip says about a sample: the rate, and what was divided.
QString sampleText(const QString& counter, double rate, double seconds);
