// SPDX-License-Identifier: MIT
#pragma once

#include "CustomCounter.h"
#include "ui_SoPerfCounterCreateCounter.h"

#include <QDialog>

/// Defines a custom counter from two others. Deletes itself when closed.
class SoPerfCounterCreateCounter : public QDialog, public Ui_QPerfCounterCreateCounter
{
    Q_OBJECT

public:
    SoPerfCounterCreateCounter(const QString& firstCounter, const QString& secondCounter,
                               QWidget* parent = nullptr);

signals:
    /// The counter of this name is registered by now.
    void createNow(QString name);

public slots:
    void okButtonAction();

private:
    CustomCounter typedCounter() const;
    /// Why this counter cannot be made or saved, in a sentence; empty where it can.
    static QString refusalOf(const CustomCounter& counter);

    QString m_firstCounter;
    QString m_secondCounter;
};
