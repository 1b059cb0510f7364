#include "EdInputs.h"

#include <algorithm>

void EdInputs::show(const QStringList& texts) const
{
    const int count = std::min(m_inputs.size(), texts.size());
    for (int i = 0; i < count; ++i)
        m_inputs[i]->showText(texts[i]);
}

bool EdInputs::isEdited() const
{
    return std::any_of(m_inputs.begin(), m_inputs.end(),
                       [](const EdLineEdit* input) { return input->isModified(); });
}

bool EdInputs::isChanged() const
{
    const auto changed = [](const EdLineEdit* input) { return input->isModified() || input->isChanged(); };
    return std::any_of(m_inputs.begin(), m_inputs.end(), changed);
}

void EdInputs::revertCursorPosition() const
{
    for (EdLineEdit* input : m_inputs)
        input->setCursorPosition(0);
}
