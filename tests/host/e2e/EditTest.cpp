// SPDX-License-Identifier: MIT
// The whole path of an edit: selection, editor, input, field, undo history.
#include <support/Session.h>

#include <QFile>

namespace
{

bool pluginIsMapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
    return maps.readAll().contains("libSpxDefaults");
}

std::string textOf(const SoField& field)
{
    SbString text;
    field.get(text);
    return text.str();
}

// A value whose shortest text has many digits.
constexpr float Exact = 0.1F + 0.0123456F;

} // namespace

TEST(EndToEnd, SelectingAFieldDocksItsEditorAtTheRight)
{
    Session session;
    EXPECT_FALSE(session.editorShown());
    session.select(&session.material->transparency);
    ASSERT_TRUE(session.editorShown());
    EXPECT_EQ(session.dock()->windowTitle(), "Field Editor");
    EXPECT_EQ(session.host.window().dockWidgetArea(session.dock()), Qt::RightDockWidgetArea);
    EXPECT_TRUE(session.inEditor<QSlider>());
    EXPECT_EQ(session.input()->text().toFloat(), 0.F);
    session.selectNothing();
    EXPECT_FALSE(session.editorShown());
    EXPECT_FALSE(session.dock()->isVisible());
    EXPECT_EQ(session.stack().count(), 0);
}

TEST(EndToEnd, NoEditorOfTheseIsForNodes)
{
    Session session;
    session.select(&session.material->transparency);
    ASSERT_TRUE(session.dock("Node Editor"));
    EXPECT_FALSE(session.dock("Node Editor")->isVisible());
}

TEST(EndToEnd, ShowingWritesNothing)
{
    Session session;
    session.material->transparency.setValue(Exact);
    const auto changes = session.material->transparency.getChangeCount();
    for (int i = 0; i < session.material->getFieldData()->getNumFields(); ++i)
        session.select(session.material->getFieldData()->getField(session.material.get(), i));
    session.select(&session.material->transparency);
    session.select(&session.material->transparency);
    session.selectNothing();
    EXPECT_EQ(session.material->transparency.getChangeCount(), changes);
    EXPECT_EQ(session.stack().count(), 0);
}

TEST(EndToEnd, OneDragIsOneStep)
{
    Session session;
    SoSFFloat& field = session.material->transparency;
    field.setValue(0.25F);
    session.select(&field);
    std::vector<float> seen;
    session.drag(5, 6, [&] { seen.push_back(field.getValue()); });
    ASSERT_EQ(seen.size(), 5U);
    EXPECT_GT(seen.front(), 0.25F); // the field follows while the handle is held
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_GT(seen.back(), seen.front());
    const float after = field.getValue();
    EXPECT_EQ(after, seen.back());
    EXPECT_EQ(session.stack().count(), 1);
    EXPECT_EQ(session.stack().undoText().toStdString(), "Material.transparency: 0.25 → " + textOf(field));

    session.stack().undo();
    Session::settle();
    EXPECT_EQ(field.getValue(), 0.25F);
    EXPECT_EQ(session.input()->text().toFloat(), 0.25F);
    session.stack().redo();
    Session::settle();
    EXPECT_EQ(field.getValue(), after);
    EXPECT_NEAR(session.input()->text().toFloat(), after, 1e-6F);
    EXPECT_EQ(session.stack().count(), 1);
}

TEST(EndToEnd, TwoDragsAreTwoSteps)
{
    Session session;
    SoSFFloat& field = session.material->transparency;
    session.select(&field);
    session.drag(3, 6, [] {});
    const float between = field.getValue();
    session.drag(3, 6, [] {});
    EXPECT_GT(field.getValue(), between);
    EXPECT_EQ(session.stack().count(), 2);
    session.stack().undo();
    EXPECT_NEAR(field.getValue(), between, 1e-6F);
    session.stack().undo();
    EXPECT_EQ(field.getValue(), 0.F);
}

TEST(EndToEnd, ADragThatWaitsForItsEndAppliesOnce)
{
    Session session;
    SoSFFloat& field = session.material->transparency;
    session.select(&field);
    session.click(session.inEditor<QCheckBox>());
    ASSERT_FALSE(session.inEditor<QCheckBox>()->isChecked());
    session.drag(4, 6, [&] { EXPECT_EQ(field.getValue(), 0.F); });
    EXPECT_GT(field.getValue(), 0.F);
    EXPECT_EQ(session.stack().count(), 1);
    session.stack().undo();
    EXPECT_EQ(field.getValue(), 0.F);
}

TEST(EndToEnd, PressingTheHandleWithoutMovingItIsNoEdit)
{
    Session session;
    SoSFFloat& field = session.material->transparency;
    field.setValue(Exact);
    session.select(&field);
    session.drag(0, 0, [] {});
    EXPECT_EQ(field.getValue(), Exact);
    EXPECT_EQ(session.stack().count(), 0);
}

TEST(EndToEnd, ATypedValueIsUndoneBitForBit)
{
    Session session;
    SoSFFloat& field = session.material->transparency;
    field.setValue(Exact);
    session.select(&field);
    session.typeAnew("0.5");
    EXPECT_EQ(field.getValue(), Exact);
    QTest::keyClick(session.input(), Qt::Key_Return);
    Session::settle();
    EXPECT_EQ(field.getValue(), 0.5F);
    EXPECT_EQ(session.stack().count(), 1);
    session.stack().undo();
    EXPECT_EQ(field.getValue(), Exact);
    session.stack().redo();
    EXPECT_EQ(field.getValue(), 0.5F);
}

TEST(EndToEnd, UndoKeysWorkWhereTheFocusIs)
{
    Session session;
    SoSFFloat& field = session.material->transparency;
    field.setValue(Exact);
    session.select(&field);
    session.typeAnew("0.5");
    QTest::keyClick(session.input(), Qt::Key_Return);
    Session::settle();
    QTest::keyClick(session.input(), Qt::Key_Z, Qt::ControlModifier);
    Session::settle();
    EXPECT_EQ(field.getValue(), Exact);
    QTest::keyClick(session.input(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    Session::settle();
    EXPECT_EQ(field.getValue(), 0.5F);
}

TEST(EndToEnd, TypingThatIsNotAppliedKeepsTheUndoKeyForItself)
{
    Session session;
    SoSFFloat& field = session.material->transparency;
    field.setValue(0.125F);
    session.select(&field);
    session.typeAnew("0.5");
    QTest::keyClick(session.input(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(session.input()->text().toFloat(), 0.125F);
    EXPECT_EQ(field.getValue(), 0.125F);
    EXPECT_EQ(session.stack().count(), 0);
}

TEST(EndToEnd, LeavingTheInputAppliesOnce)
{
    Session session;
    SoSFFloat& field = session.material->transparency;
    session.select(&field);
    session.typeAnew("0.5");
    session.host.window().centralWidget()->setFocus();
    Session::settle();
    EXPECT_EQ(field.getValue(), 0.5F);
    EXPECT_EQ(session.stack().count(), 1);
}

TEST(EndToEnd, TypingIsKeptWhenTheSelectionMoves)
{
    Session session;
    session.select(&session.material->transparency);
    session.typeAnew("0.5");
    session.select(&session.material->shininess);
    EXPECT_EQ(session.material->transparency.getValue(), 0.5F);
    EXPECT_EQ(session.material->shininess.getValue(), 0.2F);
    EXPECT_EQ(session.stack().count(), 1);
    EXPECT_TRUE(session.stack().undoText().contains("transparency"))
        << session.stack().undoText().toStdString();
    session.stack().undo();
    EXPECT_EQ(session.material->transparency.getValue(), 0.F);
}

TEST(EndToEnd, TheDefaultIsOneStepThatUndoesBitForBit)
{
    Session session;
    SoSFFloat& field = session.material->shininess;
    field.setValue(Exact);
    session.select(&field);
    session.click(session.inEditor<QPushButton>("m_defaultButton"));
    EXPECT_EQ(field.getValue(), 0.2F);
    EXPECT_EQ(session.stack().count(), 1);
    session.stack().undo();
    EXPECT_EQ(field.getValue(), Exact);
    session.stack().redo();
    EXPECT_EQ(field.getValue(), 0.2F);
}

TEST(EndToEnd, IgnoringIsOneStepThatUndoes)
{
    Session session;
    SoSFFloat& field = session.material->transparency;
    session.select(&field);
    auto* button = session.inEditor<QPushButton>("m_ignoreButton");
    session.click(button);
    EXPECT_TRUE(field.isIgnored());
    EXPECT_EQ(session.stack().count(), 1);
    session.stack().undo();
    Session::settle();
    EXPECT_FALSE(field.isIgnored());
    EXPECT_FALSE(button->isChecked());
    session.stack().redo();
    Session::settle();
    EXPECT_TRUE(field.isIgnored());
    EXPECT_TRUE(button->isChecked());
}

TEST(EndToEnd, ShowsChangesFromElsewhere)
{
    Session session;
    session.select(&session.material->transparency);
    session.material->transparency.setValue(0.75F);
    Session::settle();
    EXPECT_EQ(session.input()->text().toFloat(), 0.75F);
    EXPECT_EQ(session.stack().count(), 0);
}

TEST(EndToEnd, ANodeMayBeDestroyedWhileItIsEdited)
{
    Session session;
    session.select(&session.material->transparency);
    session.drag(3, 6, [] {});
    session.typeAnew("0.5");
    EXPECT_EQ(session.stack().count(), 1);
    session.material = nullptr;
    Session::settle();
    EXPECT_FALSE(session.editorShown());
    EXPECT_EQ(session.stack().count(), 0);
    EXPECT_FALSE(session.host.services().selectedField());
}

// What was typed is applied on the way out, and nothing of the plug-in stays behind.
TEST(EndToEnd, ThePlugInIsUnloadedWithTheHost)
{
    const SoRef<SoMaterial> material = [] {
        Session session;
        session.select(&session.material->transparency);
        session.drag(3, 6, [] {});
        session.typeAnew("0.5");
        EXPECT_TRUE(pluginIsMapped());
        return session.material;
    }();
    EXPECT_FALSE(pluginIsMapped());
    EXPECT_EQ(material->transparency.getValue(), 0.5F);
    QCoreApplication::processEvents();
}
