// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The value that was divided by the seconds to give a rate: how things stood for a state, what a quotient
/// gave. Empty where nothing is known.
QString undividedText(double rate, double seconds);
/// What a tool tip says of a sample: the rate, and what was divided.
QString sampleText(const QString& counter, double rate, double seconds);
