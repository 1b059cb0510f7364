// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <functional>

namespace inspector
{

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
