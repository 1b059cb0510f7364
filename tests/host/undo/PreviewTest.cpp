// SPDX-License-Identifier: MIT
// Former values that are shown without a trace.
#include "HostParts.h"

#include <scopix/SpxPreviewServices.h>
#include <xsg/nodes/properties/SoPoints.h>

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace
{

class Preview : public ::testing::Test
{
protected:
    Preview()
    {
        QObject::connect(preview, &SpxPreviewServices::editRefused,
                         [this](const QString& sentence) { m_refusals.append(sentence); });
        m_services.select(m_material.get());
    }
    // As a user does with an editor.
    void setShininess(float value)
    {
        edit([&] { m_material->shininess.setValue(value); });
    }
    template <class Write>
    void edit(Write write)
    {
        {
            const UserInput::Scope scope(m_services.history().input(), UserInput::Scope::User);
            write();
        }
        m_services.history().endStep();
    }
    QUndoStack& stack() { return m_services.undoStack(); }

    HostServices m_services;
    SpxPreviewServices* preview = SpxPreviewServices::getInstance();
    QStringList m_refusals;
    SoRef<SoMaterial> m_material = new SoMaterial;
    const float m_default = SoMaterial().shininess.getValue();
};

} // namespace

TEST_F(Preview, ShowsTheFirstValueAndGivesEveryBitAndFlagBack)
{
    EXPECT_TRUE(preview->getEditedFields().isEmpty());
    EXPECT_FALSE(preview->showFormer({&m_material->shininess})) << "nothing was edited";
    for (const float value : {0.5F, 0.625F, 0.1F + 0.0123456F})
        edit([&] { m_material->shininess.setValue(value); });
    edit([&] { m_material->transparency.setIgnored(true); });
    ASSERT_EQ(preview->getEditedFields().size(), 2);
    ASSERT_EQ(stack().count(), 4);
    QSignalSpy shown(preview, &SpxPreviewServices::formerShown);
    QSignalSpy acted(&m_services.history(), &UndoHistory::acted);

    EXPECT_TRUE(preview->showFormer(preview->getEditedFields(m_material.get())));
    EXPECT_TRUE(preview->isShowingFormer());
    EXPECT_EQ(m_material->shininess.getValue(), m_default);
    EXPECT_TRUE(m_material->shininess.isDefault());
    EXPECT_FALSE(m_material->transparency.isIgnored());
    preview->showPresent();
    EXPECT_EQ(m_material->shininess.getValue(), 0.1F + 0.0123456F);
    EXPECT_FALSE(m_material->shininess.isDefault());
    EXPECT_TRUE(m_material->transparency.isIgnored());
    EXPECT_EQ(shown.size(), 2);
    EXPECT_EQ(acted.size(), 0) << "nobody edited anything";
    EXPECT_EQ(stack().count(), 4);
}

TEST_F(Preview, OnlyTheFieldsThatAreAskedForChange)
{
    setShininess(0.5F);
    edit([&] { m_material->transparency.setValue(0.25F); });
    EXPECT_TRUE(preview->showFormer({&m_material->transparency}));
    EXPECT_EQ(m_material->transparency.getValue(), 0);
    EXPECT_EQ(m_material->shininess.getValue(), 0.5F);
    EXPECT_TRUE(preview->showFormer({&m_material->shininess})) << "another choice";
    EXPECT_EQ(m_material->transparency.getValue(), 0.25F);
    EXPECT_EQ(m_material->shininess.getValue(), m_default);
    EXPECT_FALSE(preview->showFormer({}));
    EXPECT_EQ(m_material->shininess.getValue(), 0.5F);
}

TEST_F(Preview, BeforeIsWhatWasSavedLast)
{
    setShininess(0.5F);
    stack().setClean();
    EXPECT_TRUE(preview->getEditedFields().isEmpty());
    setShininess(0.75F);
    EXPECT_TRUE(preview->showFormer(preview->getEditedFields()));
    EXPECT_EQ(m_material->shininess.getValue(), 0.5F);
    preview->showPresent();
    m_services.history().endStep();
    stack().setIndex(0); // beyond what was saved
    EXPECT_TRUE(preview->showFormer(preview->getEditedFields()));
    EXPECT_EQ(m_material->shininess.getValue(), 0.5F);
    preview->showPresent();
    EXPECT_EQ(m_material->shininess.getValue(), m_default);
}

TEST_F(Preview, ListsComeBackWhateverWasInsertedAndRemoved)
{
    const SoRef<SoPoints> points(new SoPoints);
    std::vector<SbVec3f> many(1000);
    points->points.setValues(0, 1000, many.data());
    m_services.select(points.get());
    edit([&] { points->points.set1Value(500, SbVec3f(1, 2, 3)); });
    edit([&] { points->points.deleteValues(10, 200); });
    edit([&] { points->points.set1Value(5, SbVec3f(7, 7, 7)); });
    const std::unique_ptr<SoMField> present(points->points.makeSlice());
    present->copyFrom(points->points);
    ASSERT_TRUE(preview->showFormer(preview->getEditedFields()));
    ASSERT_EQ(points->points.getNum(), 1000);
    EXPECT_EQ(points->points[500], SbVec3f(0, 0, 0));
    EXPECT_EQ(points->points[5], SbVec3f(0, 0, 0));
    preview->showPresent();
    EXPECT_TRUE(points->points.isSame(*present));
}

TEST_F(Preview, CommandsUndoAndRedoAreRefusedInASentence)
{
    setShininess(0.5F);
    m_services.history().endStep();
    setShininess(0.75F);
    ASSERT_TRUE(preview->showFormer(preview->getEditedFields()));
    Log log;
    m_services.executeCommand(new LoggingCommand(log, "edit"));
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(m_refusals.size(), 1);
    const int index = stack().index();
    stack().undo();
    QCoreApplication::processEvents();
    EXPECT_EQ(stack().index(), index);
    EXPECT_EQ(m_refusals.size(), 2);
    EXPECT_EQ(m_material->shininess.getValue(), m_default);
    EXPECT_TRUE(preview->refusesEdit());
    preview->showPresent();
    EXPECT_EQ(m_material->shininess.getValue(), 0.75F);
    EXPECT_FALSE(preview->refusesEdit());
    stack().undo();
    QCoreApplication::processEvents();
    EXPECT_EQ(stack().index(), index - 1);
    EXPECT_EQ(m_refusals.size(), 3);
}

TEST_F(Preview, ANodeThatIsDestroyedMeanwhileIsForgotten)
{
    auto* going = new SoMaterial;
    going->ref();
    m_services.select(going);
    edit([&] { going->shininess.setValue(0.5F); });
    ASSERT_TRUE(preview->showFormer(preview->getEditedFields()));
    going->unref();
    EXPECT_FALSE(preview->isShowingFormer());
    EXPECT_TRUE(preview->getEditedFields().isEmpty());
}
