// SPDX-License-Identifier: MIT
// One slider as a user has it, with an owner that records what it is given.
#pragma once

#include "EdIntSlider.h"
#include "EdRealSlider.h"
#include "EdUIntSlider.h"
#include "Person.h"
#include "SpxFieldEditors.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSlider>
#include <QVBoxLayout>

#include <gtest/gtest.h>

/// Writes down what a slider hands to its owner.
class SliderOwner : public SpxFieldEditors
{
public:
    ~SliderOwner() override { qDeleteAll(getWidgetContainer()->findChildren<EdSlider*>()); }
    void refresh() override { ++m_refreshes; }
    void setRefresh(bool enabled) override { m_calls << QString("refresh %1").arg(enabled); }
    void swapRows(int, int) override {}
    void swapColumns(int, int) override {}
    void set1Value(int row, int column, QString text) override
    {
        m_calls << QString("value %1 %2 %3").arg(row).arg(column).arg(text);
    }
    void setValue(int, const void*) override {}
    void applyChanges() override { m_calls << "apply"; }

    int applied() const { return m_calls.count("apply"); }

    QStringList m_calls;
    int m_refreshes = 0;
};

class Slider : public testing::Test
{
protected:
    template <class Shown>
    Shown* show(Shown* slider)
    {
        slider->resize(320, 30);
        slider->show();
        m_edit = slider->template findChild<QLineEdit*>();
        m_handle = slider->template findChild<QSlider*>();
        m_live = slider->template findChild<QCheckBox*>();
        return slider;
    }
    EdIntSlider* intSlider(SliderType type = Int32Slider, SliderParentType parent = SingleValueParent)
    {
        return show(new EdIntSlider(type, parent, &m_owner, m_owner.getWidgetContainer(), 3, 2));
    }
    EdUIntSlider* uintSlider(SliderType type = UInt32Slider)
    {
        return show(new EdUIntSlider(type, SingleValueParent, &m_owner, m_owner.getWidgetContainer(), 0, 1));
    }
    EdRealSlider* realSlider(double min, double max, bool single = true)
    {
        auto* slider =
            new EdRealSlider(SingleValueParent, &m_owner, m_owner.getWidgetContainer(), single, 0, 1);
        slider->setValidLimits(min, max, false);
        return show(slider);
    }

    void SetUp() override
    {
        m_owner.getWidgetContainer()->resize(400, 60);
        m_owner.getWidgetContainer()->show();
    }

    SliderOwner m_owner;
    QLineEdit* m_edit = nullptr;
    QSlider* m_handle = nullptr;
    QCheckBox* m_live = nullptr;
};
