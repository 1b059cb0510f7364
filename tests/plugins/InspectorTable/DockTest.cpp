// SPDX-License-Identifier: MIT
// Beside the default plug-in, in its Field Editor dock.
#include "TableFixture.h"

#include <scopix/SpxPlugin.h>

#include <QDockWidget>
#include <QLibrary>

using namespace inspector;

namespace
{

class TableDock : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto* loadPlugin = reinterpret_cast<SpxPlugin* (*)()>(m_library.resolve("loadPlugin"));
        ASSERT_NE(loadPlugin, nullptr) << m_library.errorString().toStdString();
        SpxPlugin* defaults = loadPlugin();
        ASSERT_TRUE(defaults->load());
        m_defaults = defaults->getExtensions();
        for (const auto& editor : m_editors)
            m_ours.append(editor.get());
        for (SpxExtension* extension : m_defaults) {
            if (extension->getName() == SbString("Field Editor"))
                m_dock = extension;
        }
        ASSERT_NE(m_dock, nullptr);
    }
    void TearDown() override
    {
        m_host->select(static_cast<SoField*>(nullptr));
        m_host->clearUndo();
        m_host->stop(*m_dock);
        for (SpxExtension* extension : m_loaded)
            extension->unload();
        m_host.reset();
        reinterpret_cast<void (*)()>(m_library.resolve("unloadPlugin"))();
    }
    // Loads the extensions in this order, the order of registration.
    void start(const QList<SpxExtension*>& extensions)
    {
        for (SpxExtension* extension : extensions) {
            if (extension != m_dock)
                extension->load();
        }
        m_host->control(extensions);
        m_host->start(*m_dock);
        m_host->window().show();
        for (SpxExtension* extension : extensions) {
            if (extension != m_dock)
                m_loaded.push_back(extension);
        }
    }
    ListTable* shownTable() { return m_host->window().findChild<ListTable*>(); }

    std::unique_ptr<TestHost> m_host = std::make_unique<TestHost>();
    SoRef<SoFieldGallery> m_gallery{new SoFieldGallery};
    QLibrary m_library{SCOPIX_PLUGIN};
    QList<SpxExtension*> m_defaults;
    QList<SpxExtension*> m_ours;
    std::vector<std::unique_ptr<SpxExtension>> m_editors = makeTableEditors();
    std::vector<SpxExtension*> m_loaded;
    SpxExtension* m_dock = nullptr;
};

} // namespace

TEST_F(TableDock, TheLaterEditorOfTheSameTypeWinsForEveryList)
{
    start(m_defaults + m_ours);
    const SoFieldData* data = m_gallery->getFieldData();
    int lists = 0;
    for (int i = 0; SoField* field = data->getField(m_gallery.get(), i); ++i) {
        m_host->select(field);
        TestHost::pump();
        auto* list = dynamic_cast<SoMField*>(field);
        lists += list != nullptr;
        ASSERT_EQ(shownTable() != nullptr, list != nullptr) << field->getName().getString();
        if (list) {
            EXPECT_EQ(shownTable()->list(), list);
            EXPECT_TRUE(shownTable()->isVisible());
        }
    }
    EXPECT_EQ(lists, int(ListAccess::types().size()));
    EXPECT_EQ(m_host->undoCount(), 0);
}

TEST_F(TableDock, AnEditorThatWasRegisteredBeforeGivesWay)
{
    start(m_ours + m_defaults);
    m_host->select(&m_gallery->mfFloat);
    TestHost::pump();
    EXPECT_EQ(shownTable(), nullptr);
    m_host->select(&m_gallery->mfBox3f);
    TestHost::pump();
    EXPECT_NE(shownTable(), nullptr) << "of a type that nobody else edits so closely";
}

TEST_F(TableDock, ANodeThatIsDestroyedTakesItsTableAway)
{
    start(m_defaults + m_ours);
    m_host->select(&m_gallery->mfVec3f);
    TestHost::pump();
    ASSERT_NE(shownTable(), nullptr);
    shownTable()->view().setFocus();
    QTest::keyClick(&shownTable()->view(), Qt::Key_F2);
    m_gallery = SoRef<SoFieldGallery>(new SoFieldGallery);
    TestHost::pump();
    EXPECT_EQ(shownTable(), nullptr);
}
