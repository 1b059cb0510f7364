// SPDX-License-Identifier: MIT
// The editor to derive from, with a spin box for a material's shininess.
#include <scopix/editing/SpxObjectEditor.h>

#include <scopix/editing/SpxFieldEdit.h>
#include <support/TestHost.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QtTest>

namespace
{

class PercentEditor : public SpxObjectEditor
{
public:
    PercentEditor() { setHandledType(SoMaterial::getClassTypeId()); }

    QPointer<QSpinBox> box;
    int refreshes = 0;

protected:
    void build(QWidget& widget) override
    {
        auto* layout = new QHBoxLayout(&widget);
        layout->addWidget(box = new QSpinBox);
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, [this](int percent) {
            if (auto* material = edited<SoMaterial>())
                SpxFieldEdit::write(&material->shininess,
                                    [&] { material->shininess.setValue(float(percent) / 100); });
        });
    }
    void refresh() override
    {
        ++refreshes;
        const QSignalBlocker quiet(box);
        box->setValue(int(std::lround(100 * edited<SoMaterial>()->shininess.getValue())));
    }
};

class ObjectEditor : public ::testing::Test
{
protected:
    void SetUp() override { m_host.edit(m_editor, m_material.get()); }
    void TearDown() override { m_host.stop(m_editor); }

    TestHost m_host;
    SoRef<SoMaterial> m_material{new SoMaterial};
    PercentEditor m_editor;
};

} // namespace

TEST_F(ObjectEditor, ShowsWithoutEditing)
{
    EXPECT_EQ(m_editor.box->value(), 20);
    EXPECT_TRUE(m_editor.isShown());
    EXPECT_TRUE(m_editor.getWidget()->isVisible());
    EXPECT_TRUE(m_material->shininess.isDefault());
    EXPECT_EQ(m_host.undoCount(), 0);
}

TEST_F(ObjectEditor, EditsByAKeyAndFollowsTheUndo)
{
    QTest::keyClick(m_editor.box, Qt::Key_Up);
    EXPECT_FLOAT_EQ(m_material->shininess.getValue(), 0.21F);
    m_host.pump();
    m_host.undo();
    EXPECT_EQ(m_material->shininess.getValue(), 0.2F);
    m_host.pump();
    EXPECT_EQ(m_editor.box->value(), 20);
}

TEST_F(ObjectEditor, RefreshesOncePerTurn)
{
    const int before = m_editor.refreshes;
    m_material->shininess.setValue(0.5F);
    m_material->shininess.setValue(0.6F);
    m_host.pump();
    EXPECT_EQ(m_editor.refreshes, before + 1);
    EXPECT_EQ(m_editor.box->value(), 60);
}

TEST_F(ObjectEditor, ReleasesADestroyedNode)
{
    m_material = nullptr;
    EXPECT_EQ(m_editor.getEditedObject(), nullptr);
    EXPECT_FALSE(m_editor.isShown());
    QTest::keyClick(m_editor.box, Qt::Key_Up);
    EXPECT_EQ(m_host.undoCount(), 0);
}

TEST_F(ObjectEditor, IgnoresChangesOnceDeactivated)
{
    m_host.release(m_editor);
    const int before = m_editor.refreshes;
    m_material->shininess.setValue(0.5F);
    m_host.pump();
    EXPECT_EQ(m_editor.refreshes, before);
    EXPECT_FALSE(m_editor.getWidget()->isVisible());
}

TEST_F(ObjectEditor, IsBuiltAgainByEachLoad)
{
    const QPointer<QSpinBox> first = m_editor.box;
    m_host.stop(m_editor);
    EXPECT_EQ(m_editor.getWidget(), nullptr);
    EXPECT_FALSE(first);
    m_host.edit(m_editor, m_material.get());
    EXPECT_EQ(m_editor.box->value(), 20);
}
