// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExtension.h>

class QComboBox;
class QToolBar;

/// A tool bar with a box of the host's profiles: choosing one makes it the active profile. GUI thread only.
class SpxProfileSelectorExtension : public SpxExtension
{
    Q_OBJECT

public:
    SpxProfileSelectorExtension();

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

private slots:
    void s_currentIndexChanged(int index);

private:
    void appendProfile(const SpxProfile& profile);
    int fill(const QList<SpxProfile*>& profiles, const SpxProfile* active);

    QToolBar* m_toolBar = nullptr;
    QComboBox* m_comboBox = nullptr; // child of the tool bar
};
