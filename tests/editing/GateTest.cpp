// SPDX-License-Identifier: MIT
// The gate of an edit: the command is built, the field is written, the host takes the command over.
#include <scopix/editing/SpxFieldEdit.h>

#include <scopix/editing/SpxText.h>
#include <support/TestHost.h>
#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFString.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <gtest/gtest.h>

namespace
{

// Notes in which order its three steps come.
class OrderCommand : public SpxCommand
{
public:
    OrderCommand(const SoSFFloat& field, std::vector<std::string>& steps)
        : m_steps(steps)
    {
        m_steps.push_back("built at " + std::to_string(int(field.getValue())));
    }
    void execute() override { m_steps.emplace_back("executed"); }
    void undo() override {}
    void redo() override {}

private:
    std::vector<std::string>& m_steps;
};

class DroppedCommand : public SpxCommand
{
public:
    explicit DroppedCommand(bool& isDeleted)
        : m_isDeleted(isDeleted)
    {
    }
    ~DroppedCommand() override { m_isDeleted = true; }
    void execute() override {}
    void undo() override {}
    void redo() override {}

private:
    bool& m_isDeleted;
};

class Gate : public ::testing::Test
{
protected:
    TestHost m_host;
    SoRef<SoMaterial> m_material{new SoMaterial};
    SoSFFloat& m_field = m_material->shininess;
};

} // namespace

TEST_F(Gate, BuildsThenWritesThenHandsOver)
{
    std::vector<std::string> steps;
    m_field.setValue(1);
    auto command = std::make_unique<OrderCommand>(m_field, steps);
    EXPECT_TRUE(SpxFieldEdit::apply(&m_field, std::move(command), [&] { steps.emplace_back("written"); }));
    EXPECT_EQ(steps, (std::vector<std::string>{"built at 1", "written", "executed"}));
}

TEST_F(Gate, UndoAndRedoRestoreEveryBit)
{
    const float before = std::nextafter(0.1F, 1.F);
    const float after = std::nextafter(0.7F, 1.F);
    m_field.setValue(before);
    EXPECT_TRUE(SpxFieldEdit::write(&m_field, [&] { m_field.setValue(after); }));
    EXPECT_EQ(m_host.takeLog(), (TestHost::Log{"executeCommand SpxSetFieldCommand"}));
    m_host.undo();
    EXPECT_EQ(m_field.getValue(), before);
    m_host.redo();
    EXPECT_EQ(m_field.getValue(), after);
}

TEST_F(Gate, RecordsNothingWhereNothingWasWritten)
{
    EXPECT_FALSE(SpxFieldEdit::write(&m_field, [] { return false; }));
    EXPECT_FALSE(SpxFieldEdit::setText(&m_field, "much"));
    EXPECT_EQ(m_field.getValue(), 0.2F);
    EXPECT_TRUE(m_host.log().empty());
}

TEST_F(Gate, RecordsNothingWhereTheWriteDestroysTheField)
{
    bool isDeleted = false;
    EXPECT_FALSE(SpxFieldEdit::apply(&m_field, std::make_unique<DroppedCommand>(isDeleted),
                                     [this] { m_material = nullptr; }));
    EXPECT_TRUE(isDeleted);
    EXPECT_TRUE(m_host.log().empty());
}

TEST_F(Gate, TakesTextAndGivesItBack)
{
    EXPECT_TRUE(SpxFieldEdit::setText(&m_field, "0.625"));
    EXPECT_EQ(m_field.getValue(), 0.625F);
    EXPECT_EQ(SpxText::ofField(m_field), "0.625");
    m_host.undo();
    EXPECT_EQ(m_field.getValue(), 0.2F);
}

TEST_F(Gate, TakesTheValueOfAnotherField)
{
    SoSFString words;
    words.setValue("0.5");
    EXPECT_TRUE(SpxFieldEdit::setValue(&m_field, words));
    EXPECT_EQ(m_field.getValue(), 0.5F);
    SoSFString noNumber;
    noNumber.setValue("half");
    EXPECT_FALSE(SpxFieldEdit::setValue(&m_field, noNumber));
    EXPECT_EQ(m_host.undoCount(), 1);
}

TEST_F(Gate, SetsTheDefaultAndItsMark)
{
    m_field.setValue(0.9F);
    EXPECT_TRUE(SpxFieldEdit::setToDefault(&m_field));
    EXPECT_EQ(m_field.getValue(), 0.2F);
    EXPECT_TRUE(m_field.isDefault());
    m_host.undo();
    EXPECT_EQ(m_field.getValue(), 0.9F);
    EXPECT_FALSE(m_field.isDefault());
    m_host.redo();
    EXPECT_TRUE(m_field.isDefault());
}

TEST_F(Gate, HasNoDefaultForAFieldWithoutANode)
{
    SoSFBool alone;
    EXPECT_FALSE(SpxFieldEdit::setToDefault(&alone));
    EXPECT_TRUE(m_host.log().empty());
}

TEST_F(Gate, IgnoresAFieldOnce)
{
    EXPECT_TRUE(SpxFieldEdit::setIgnored(&m_field, true));
    EXPECT_FALSE(SpxFieldEdit::setIgnored(&m_field, true));
    EXPECT_TRUE(m_field.isIgnored());
    EXPECT_TRUE(m_field.isDefault());
    m_host.undo();
    EXPECT_FALSE(m_field.isIgnored());
    m_host.redo();
    EXPECT_TRUE(m_field.isIgnored());
}

TEST(GateWithoutAHost, WritesAndDropsTheCommand)
{
    SoSFFloat field;
    bool isDeleted = false;
    EXPECT_FALSE(
        SpxFieldEdit::apply(&field, std::make_unique<DroppedCommand>(isDeleted), [&] { field.setValue(2); }));
    EXPECT_EQ(field.getValue(), 2);
    EXPECT_TRUE(isDeleted);
}
