// SPDX-License-Identifier: MIT
#pragma once

#include "EdFieldEdits.h"
#include "SpxFieldEditors.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFFloat.h>

#include <QFrame>
#include <QLineEdit>

#include <string>

/// A field editor with one line of text and a window of its own, which writes down what the framework asks of
/// it.
class ProbeEditor : public SpxFieldEditors
{
public:
    explicit ProbeEditor(SoType handled = SoSFFloat::getClassTypeId(), const char* name = "Probe")
    {
        setName(name);
        setHandledType(handled);
    }

    void load() override
    {
        calls += "load ";
        SpxFieldEditors::load();
        input = new QLineEdit(getWidgetContainer());
        window = new QFrame(getWidgetContainer(), Qt::Popup);
        addWindow(window);
    }
    void unload() override
    {
        calls += "unload ";
        SpxFieldEditors::unload();
    }
    void activate() override
    {
        calls += getWidget()->parentWidget() ? "docked activate " : "activate ";
        SpxFieldEditors::activate();
    }
    void deactivate() override
    {
        calls += "deactivate ";
        SpxFieldEditors::deactivate();
    }
    void show() override
    {
        calls += "show ";
        SpxFieldEditors::show();
    }
    void hide() override
    {
        calls += "hide ";
        SpxFieldEditors::hide();
    }
    void setField(SoField* field) override
    {
        calls += "setField ";
        SpxFieldEditors::setField(field);
    }
    void refresh() override
    {
        calls += "refresh ";
        SbString text;
        getField()->get(text);
        input->setText(SpxText::toQString(text));
    }
    void setRefresh(bool) override {}
    void swapRows(int, int) override {}
    void swapColumns(int, int) override {}
    void set1Value(int, int, QString) override {}
    void setValue(int, const void*) override {}
    bool edited() override { return input->isModified(); }
    void applyChanges() override
    {
        auto* field = getFieldAs<SoSFFloat>();
        if (!field)
            return;
        calls += "apply ";
        EdFieldEdits::write(field, [&] { field->setValue(SpxText::toFloatOr0(input->text())); });
        input->setModified(false);
    }
    void type(const QString& text)
    {
        input->setText(text);
        input->setModified(true);
    }
    std::string takeCalls() { return std::exchange(calls, {}); }

    SoField* field() const { return getField(); }
    const EdRangeComponent& range() const { return m_range; }

    QLineEdit* input = nullptr;
    QFrame* window = nullptr;
    std::string calls;
};
