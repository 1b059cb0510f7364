// SPDX-License-Identifier: MIT
#pragma once

#include "ui_SoPerfCounterPage.h"

#include <QWidget>

class SoPerfCounterProfile;

/// One tab of the profile manager: the counters of one profile. Its table is made when it is first seen or
/// asked for, so that a file may hold thousands of profiles.
class SoPerfCounterPage : public QWidget, public Ui_QPerfCounterPage
{
    Q_OBJECT

public:
    /// The profile stays its owner's and has to live as long as the page is shown.
    explicit SoPerfCounterPage(const SoPerfCounterProfile& profile, QWidget* parent = nullptr);

    QTableWidget* getTableProfile();
    /// Takes the profile's counters over again.
    void refill();
    void setVisible(bool visible) override;

private:
    const SoPerfCounterProfile& m_profile;
};
