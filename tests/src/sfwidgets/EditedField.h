// SPDX-License-Identifier: MIT
#pragma once

#include "Person.h"
#include "SpxFieldEditors.h"
#include "support/TestHost.h"

#include <xsg/core/SoField.h>

#include <QCheckBox>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

#include <gtest/gtest.h>

#include <memory>
#include <string>

inline std::string textOf(const SoField& field)
{
    SbString text;
    field.get(text);
    return text.str();
}

/// An editor in a host, on a field of a node or on a field that stands alone.
template <class Editor, class Field>
struct EditedField {
    /// The field stands alone.
    EditedField() = default;
    explicit EditedField(const char* text) { begin(text); }

    void begin(const char* text)
    {
        ASSERT_TRUE(field.set(text));
        host.edit(editor, &field);
        editor.getWidget()->resize(420, 40);
        TestHost::pump();
    }

    template <class Input = QWidget>
    Input* find(const char* name = nullptr)
    {
        return editor.getWidget()->template findChild<Input*>(QString::fromLatin1(name));
    }
    QLineEdit* edit() { return find<QLineEdit>(); }
    QSlider* slider() { return find<QSlider>(); }
    QCheckBox* live() { return find<QCheckBox>(); }
    QPushButton* defaultButton() { return find<QPushButton>("m_defaultButton"); }
    QPushButton* ignoreButton() { return find<QPushButton>("m_ignoreButton"); }

    void apply() { static_cast<SpxFieldEditors&>(editor).applyChanges(); }
    std::string text() const { return textOf(field); }
    std::string shown() { return edit()->text().toStdString(); }
    int commands() const { return int(host.log().size()); }
    /// A change from elsewhere, seen by the editor.
    void change(const char* text)
    {
        ASSERT_TRUE(field.set(text));
        TestHost::pump();
    }
    void undo()
    {
        ASSERT_TRUE(host.undo());
        TestHost::pump();
    }
    void redo()
    {
        ASSERT_TRUE(host.redo());
        TestHost::pump();
    }

    Field field;
    TestHost host;
    Editor editor{nullptr};
};
