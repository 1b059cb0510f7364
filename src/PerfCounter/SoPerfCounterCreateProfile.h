// SPDX-License-Identifier: MIT
#pragma once

#include "ui_SoPerfCounterCreateProfile.h"

#include <QDialog>

/// Asks for the name of a new profile. Deletes itself when closed.
class SoPerfCounterCreateProfile : public QDialog, public Ui_QPerfCounterCreateProfile
{
    Q_OBJECT

public:
    explicit SoPerfCounterCreateProfile(QWidget* parent = nullptr);

signals:
    void createdNewProfile(QString name);

private slots:
    void okButtonAction();
};
