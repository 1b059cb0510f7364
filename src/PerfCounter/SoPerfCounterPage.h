// One tab of the profile manager: the counters of one profile.
#pragma once

#include "ui_SoPerfCounterPage.h"

#include <QWidget>

class SoPerfCounterPage : public QWidget, public Ui_QPerfCounterPage
{
    Q_OBJECT

public:
    explicit SoPerfCounterPage(QWidget* parent = nullptr);

    QTableWidget* getTableProfile() const { return m_tableProfile; }
};
