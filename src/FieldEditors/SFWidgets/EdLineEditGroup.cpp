// SPDX-License-Identifier: MIT
#include "EdLineEditGroup.h"

#include <algorithm>

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

bool EdLineEditGroup::isChanged() const
{
    const auto changed = [](const EdLineEdit* input) { return input->isModified() || input->isChanged(); };
    return std::any_of(m_inputs.begin(), m_inputs.end(), changed);
}

void EdLineEditGroup::revertCursorPosition() const
{
    for (EdLineEdit* input : m_inputs)
        input->setCursorPosition(0);
}
