// SPDX-License-Identifier: MIT
// The example of a field editor, in the real host.
#include <support/Session.h>

namespace
{

class ColorChips : public testing::Test
{
protected:
    ColorChips()
    {
        EXPECT_TRUE(m_session.host.plugins().loadPlugin(QStringLiteral(COLOR_CHIPS_FILE)));
        m_session.select(&color);
    }
    QPushButton* chip(const char* name) { return m_session.inEditor<QPushButton>(name); }

    Session m_session;
    SoSFColor& color = m_session.material->specularColor;
};

} // namespace

TEST_F(ColorChips, IsChosenForColours)
{
    ASSERT_TRUE(m_session.editorShown());
    EXPECT_TRUE(chip("Amber"));
}

TEST_F(ColorChips, AClickIsOneStep)
{
    const SbColor before = color.getValue();
    m_session.click(chip("Amber"));
    EXPECT_EQ(color.getValue(), SbColor(0.9F, 0.6F, 0.1F));
    EXPECT_EQ(m_session.stack().count(), 1);

    m_session.stack().undo();
    m_session.settle();
    EXPECT_EQ(color.getValue(), before);
}

TEST_F(ColorChips, ADragIsOneStepAndTheFieldFollowsIt)
{
    color.setValue(SbColor(1, 0.5F, 0));
    m_session.settle();
    std::vector<float> seen;
    m_session.drag(4, -10, [&] { seen.push_back(color.getValue()[0]); });

    ASSERT_EQ(seen.size(), 4U);
    EXPECT_TRUE(std::is_sorted(seen.rbegin(), seen.rend()));
    EXPECT_LT(seen.back(), 1);
    EXPECT_FLOAT_EQ(color.getValue()[1], color.getValue()[0] / 2) << "the hue stays";
    EXPECT_EQ(m_session.stack().count(), 1);

    m_session.stack().undo();
    EXPECT_EQ(color.getValue(), SbColor(1, 0.5F, 0));
}

TEST_F(ColorChips, ADragStaysWithItsField)
{
    color.setValue(SbColor(1, 1, 1));
    SoSFColor& other = m_session.material->emissiveColor;
    other.setValue(SbColor(0, 0.5F, 0));
    m_session.settle();
    m_session.drag(2, -20, [&] { m_session.select(&other); });
    EXPECT_LT(color.getValue()[0], 1);
    EXPECT_EQ(other.getValue(), SbColor(0, 0.5F, 0));

    m_session.click(chip("Red"));
    EXPECT_EQ(other.getValue(), SbColor(0.8F, 0.1F, 0.1F));
}

TEST_F(ColorChips, FollowsAChangeFromElsewhereAndWritesNothing)
{
    color.setValue(SbColor(0, 0.25F, 0));
    m_session.settle();
    EXPECT_EQ(m_session.inEditor<QSlider>()->value(), 25);
    EXPECT_EQ(color.getValue(), SbColor(0, 0.25F, 0));
    EXPECT_EQ(m_session.stack().count(), 0);
}
