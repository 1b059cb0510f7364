// SPDX-License-Identifier: MIT
#pragma once

#include "EditorRows.h"
#include "Gallery.h"

#include <QTest>

/// A row's editor on a field of a gallery, in the row's place.
class EveryEditor : public Gallery, public testing::WithParamInterface<EditorRow>
{
protected:
    void SetUp() override
    {
        Gallery::SetUp();
        m_field = fieldOf(m_gallery.get(), row().type);
        ASSERT_TRUE(m_field->set(value(0).c_str())) << value(0);
        open();
    }
    static const EditorRow& row() { return GetParam(); }
    static const std::string& value(int index)
    {
        return row().values[std::size_t(index) % row().values.size()];
    }
    // Another field of the same type, with a value of its own.
    SoSField* another(int index)
    {
        SoSField* field = fieldOf(addNode(), row().type);
        EXPECT_TRUE(field->set(value(index).c_str()));
        return field;
    }
    void open(SoSField* field)
    {
        m_editor = show(field);
        ::open(row(), m_editor);
        TestHost::pump();
    }
    void open() { open(m_field); }
    std::string text() const { return textOf(*m_field); }
    std::string shown() { return shownIn(row(), m_editor); }
    QList<QWidget*> lines() { return linesOf(row(), m_editor); }
    QPushButton* button(const char* name) { return m_editor->findChild<QPushButton*>(name); }
    bool isLine(QWidget* input) { return lines().contains(input); }
    // Each line is for one number, where the general one is for all the text there is.
    static bool isNumbers()
    {
        return row().place != EditorRow::General &&
               row().shown[0].find_first_not_of("0123456789.-|") == std::string::npos;
    }
    bool canEdit() const { return row().input >= 0; }
    // The longest that the editor's lines have to show whole.
    static QString longNumber()
    {
        const std::string type = row().type;
        if (type == "SFVec2s" || type == "SFBox3s" || type == "SFShort" || type == "SFUShort")
            return QStringLiteral("-32768");
        if (type == "SFVec2i32" || type == "SFInt32" || type == "SFUInt32")
            return QStringLiteral("-2147483648");
        return type == "SFColor" ? QStringLiteral("0.501961") : QStringLiteral("-0.123457");
    }
    // What the person types, not ended where it can wait.
    void type()
    {
        if (canEdit())
            typeInto(inputsOf(row(), m_editor)[row().input], row().keys);
        TestHost::pump();
    }
    void typeAndEnter()
    {
        type();
        if (canEdit() && isLine(inputsOf(row(), m_editor)[row().input]))
            QTest::keyClick(inputsOf(row(), m_editor)[row().input], Qt::Key_Return);
        TestHost::pump();
    }

    SoSField* m_field = nullptr;
    QWidget* m_editor = nullptr;
};
