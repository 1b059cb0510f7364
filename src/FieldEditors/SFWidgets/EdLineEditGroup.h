// SPDX-License-Identifier: MIT
#pragma once

#include "EdLineEdit.h"

#include <QList>
#include <QStringList>

#include <vector>

/// The line edits of an editor of several numbers. An input whose text is still as last shown stands for the
/// number that the field has; only what the user changed is converted.
class EdLineEditGroup
{
public:
    /// Not owned.
    void add(EdLineEdit* input) { m_inputs.append(input); }
    void clear() { m_inputs.clear(); }
    const QList<EdLineEdit*>& all() const { return m_inputs; }
    EdLineEdit* at(int index) const { return m_inputs.at(index); }

    void show(const QStringList& texts) const;
    /// True when the user typed in one of them.
    bool isEdited() const;
    /// Before applying: an input whose text is no number shows the field's number again, and one whose text
    /// ended as it was shown counts as untouched. True when there is something left to apply.
    bool takeTyping() const;
    /// Back to their beginnings, so that long numbers show it.
    void revertCursorPosition() const;

    /// Puts what was changed in place of the field's present numbers. The inputs are then taken as applied.
    template <class Number, class Convert>
    void read(std::vector<Number>& numbers, Convert convert) const
    {
        for (int i = 0; i < m_inputs.size(); ++i) {
            if (m_inputs[i]->isChanged())
                numbers[std::size_t(i)] = convert(m_inputs[i]->text());
            m_inputs[i]->setModified(false);
        }
    }

private:
    QList<EdLineEdit*> m_inputs;
};
