// SPDX-License-Identifier: MIT
#include "EdLineEditGroup.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

// A complete one, and none that a float cannot hold.
bool holdsNumber(const EdLineEdit& input)
{
    bool ok = false;
    const double value = input.text().toDouble(&ok);
    const bool isTooLarge =
        std::isfinite(value) && std::abs(value) > double(std::numeric_limits<float>::max());
    return ok && !isTooLarge && input.hasAcceptableInput();
}

} // namespace

void EdLineEditGroup::show(const QStringList& texts) const
{
    const int count = std::min(m_inputs.size(), texts.size());
    for (int i = 0; i < count; ++i)
        m_inputs[i]->showText(texts[i]);
}

bool EdLineEditGroup::isEdited() const
{
    return std::any_of(m_inputs.begin(), m_inputs.end(),
                       [](const EdLineEdit* input) { return input->isModified(); });
}

bool EdLineEditGroup::takeTyping() const
{
    for (EdLineEdit* input : m_inputs) {
        if (input->isChanged() ? !holdsNumber(*input) : input->isModified())
            input->dropTyping();
    }
    return std::any_of(m_inputs.begin(), m_inputs.end(),
                       [](const EdLineEdit* input) { return input->isChanged(); });
}

void EdLineEditGroup::revertCursorPosition() const
{
    for (EdLineEdit* input : m_inputs)
        input->setCursorPosition(0);
}
