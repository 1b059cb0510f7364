// Profiles and plug-ins that change while a field is being edited.
#include <support/Session.h>

namespace
{

class ShippedProfiles : public testing::Test
{
protected:
    ShippedProfiles()
    {
        session.host.plugins().setProfiles(ProfileFile::shipped().profiles, QStringLiteral("Default"));
        field().setValue(0.125F);
        session.select(&field());
    }
    SoSFFloat& field() { return session.material->transparency; }
    void use(const char* profile)
    {
        HostPluginsManager& plugins = session.host.plugins();
        plugins.setActiveProfile(plugins.findProfile(QString::fromLatin1(profile)));
    }

    Session session;
};

} // namespace

TEST_F(ShippedProfiles, AnotherOneAppliesAnEditInProgressAndKeepsTheSelection)
{
    ASSERT_TRUE(session.editorShown());
    session.typeAnew("0.25");
    use("Edit");
    Session::settle();
    EXPECT_EQ(field().getValue(), 0.25F);
    EXPECT_EQ(session.stack().count(), 1);
    EXPECT_EQ(session.host.services().selectedField(), &field());
    EXPECT_TRUE(session.editorShown());
}

TEST_F(ShippedProfiles, AThousandSwitchesLeaveNothingBehind)
{
    const char* const names[] = {"Edit", "Measure", "Default"};
    for (int i = 0; i < 1000; ++i) {
        use(names[i % 3]);
        QCoreApplication::sendPostedEvents();
    }
    Session::settle();
    use("Measure");
    Session::settle();
    EXPECT_FALSE(session.dock());
    use("Default");
    Session::settle();
    EXPECT_EQ(session.host.services().selectedField(), &field());
    EXPECT_TRUE(session.editorShown());
    EXPECT_EQ(field().getValue(), 0.125F);
    EXPECT_EQ(session.stack().count(), 0);
    EXPECT_EQ(session.host.messages().errorCount(), 0);
}

TEST_F(ShippedProfiles, ThePlugInComesAndGoesWithAnEditorOpen)
{
    for (int i = 0; i < 3; ++i) {
        session.host.plugins().unloadAll();
        EXPECT_FALSE(session.dock());
        ASSERT_TRUE(session.host.plugins().loadPlugin(QStringLiteral(SCOPIX_PLUGIN)));
        EXPECT_TRUE(session.editorShown());
    }
}
