// SPDX-License-Identifier: MIT
// The rows of fields that a clip holds.
#include "InspectorSession.h"

#include <support/Waiting.h>

#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QToolButton>

namespace
{

class AnimatedRow : public testing::Test
{
protected:
    AnimatedRow()
    {
        transform->translation.setValue(0, 7, 0);
        auto* track = new SoTrack;
        clip->addChild(track);
        track->target.setValue(transform.get());
        track->field.setValue(SbName("translation"));
        track->times.setValues({0, 2});
        track->values.setValues({0, 0, 0, 4, 0, 0});
        session.selectNode(transform.get());
    }
    QString mark(const char* field)
    {
        Session::settle();
        return session.in<QToolButton>(field, "mark")->accessibleDescription();
    }

    // The panel shows many changes in a row together.
    bool becomes(const char* field, const char* words)
    {
        return waitFor([&] { return mark(field) == QLatin1String(words); });
    }

    InspectorSession session;
    const SoRef<SoTransform> transform{new SoTransform};
    const SoRef<SoAnimation> clip{new SoAnimation};
};

TEST_F(AnimatedRow, SaysWhatTheFieldHoldsAtRest)
{
    EXPECT_FALSE(mark("translation").startsWith("Animated"));
    clip->goTo(1);
    EXPECT_TRUE(becomes("translation", "Animated: 0 7 0 at rest, which is what is saved."));
    EXPECT_EQ(session.number("translation")->text(), "2");
    EXPECT_FALSE(mark("rotation").startsWith("Animated"));
    clip->stop();
    EXPECT_TRUE(becomes("translation", "Changed: not the default."));
    EXPECT_EQ(session.number("translation", 1)->text(), "7");
    EXPECT_EQ(session.stack().count(), 0);
}

TEST_F(AnimatedRow, IsEditedAndUndoneToTheValueAtRest)
{
    clip->goTo(1);
    Session::settle();
    session.type(session.number("translation"), "5");
    QTest::keyClick(session.number("translation"), Qt::Key_Return);
    Session::settle();
    EXPECT_EQ(transform->translation.getValue()[0], 5);
    EXPECT_TRUE(becomes("translation", "Changed: not the default."));
    EXPECT_EQ(session.stack().count(), 1);
    session.stack().undo();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 7, 0));
    clip->goTo(2);
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(4, 0, 0));
}

} // namespace
