// SPDX-License-Identifier: MIT
#pragma once

class QEvent;
class QWidget;

namespace inspector
{

/// Shows an input's whole text for an event that asks for its tool tip, where the input is too narrow for it;
/// false elsewhere.
bool showCutText(QWidget& input, const QEvent& event);

} // namespace inspector
