// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <functional>

namespace inspector
{

/// The input's text is wider than the input.
bool isCut(const QLineEdit& input);
/// Shows the whole text for an event that asks for the tool tip, where it is cut; false elsewhere.
bool showCutText(QLineEdit& input, QEvent* event);

/// An input for a text. Esc gives back what was there, by a call, whatever else it is for elsewhere. GUI
/// thread only.
class TextEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextEdit(std::function<void()> giveBack)
        : m_giveBack(std::move(giveBack))
    {
    }

protected:
    bool event(QEvent* event) override;

private:
    std::function<void()> m_giveBack;
};

} // namespace inspector
