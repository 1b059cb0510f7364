// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxNavigator.h>

namespace scopix
{

class HostWindow;

/// Leads extensions through the window and the scene that it shows. GUI thread only.
class WindowNavigator : public SpxNavigator
{
public:
    /// The window must outlive it.
    explicit WindowNavigator(HostWindow& window)
        : m_window(window)
    {
    }

    void openFile(const QString& path) override;
    SoNode* findNode(const QString& path) const override;
    SoField* findField(const QString& path) const override;
    void addStatusWidget(QWidget* widget) override;
    void removeStatusWidget(QWidget* widget) override;

private:
    HostWindow& m_window;
};

} // namespace scopix
