// SPDX-License-Identifier: MIT
// The profile manager's own files: what it opens, saves and refuses, and what becomes of the counters.
#include "CounterFixture.h"
#include "support/FileAnswer.h"

#include <QDomDocument>
#include <QSignalSpy>

#include <cerrno>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

class CounterManagerFile : public CounterHome
{
protected:
    CounterManagerFile()
    {
        writeExample();
        open();
        manager = openManager();
    }
    QString other() const { return folder.path() + "/other.xml"; }
    // One profile, one custom counter, neither of them the example's.
    void writeOther()
    {
        writeFile(other(),
                  "<perfCounterModule><customPC><counter name='others' type='S'><level>1</level></counter>"
                  "</customPC><profiles><profile name='third'><listcounters><pc>testB</pc></listcounters>"
                  "<listview><pcviewed>testB</pcviewed></listview></profile></profiles></perfCounterModule>");
    }
    QStringList tabs() const
    {
        QStringList names;
        for (int i = 0; i < manager->m_tabProfile->count(); ++i)
            names.append(manager->m_tabProfile->tabText(i));
        return names;
    }
    static QStringList namesOf(const QString& file, const char* tag)
    {
        QDomDocument document;
        EXPECT_TRUE(document.setContent(readFile(file)));
        QStringList names;
        const QDomNodeList all = document.elementsByTagName(tag);
        for (int i = 0; i < all.size(); ++i)
            names.append(all.at(i).toElement().attribute("name"));
        return names;
    }
    void press(QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(manager->m_buttonBox->button(button), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QPointer<SoPerfCounterProfileManager> manager;
    const QString refused = QStringLiteral("Performance counter profile: ");
};

TEST_F(CounterManagerFile, OpensAnotherWhoseCountersAndProfilesReplaceAll)
{
    writeOther();
    FileAnswer answer(other());
    manager->actionOpenProfile->trigger();
    EXPECT_EQ(answer.caption, "Open performance counter profile");
    EXPECT_EQ(answer.filters, QStringList{"XML Files (*.xml)"});
    EXPECT_EQ(tabs(), QStringList{"third"});
    EXPECT_FALSE(isRegistered("perFrame"));
    EXPECT_TRUE(isRegistered("others"));
    EXPECT_EQ(manager->m_listCounter->findItems("others", Qt::MatchExactly).size(), 1);
    EXPECT_EQ(manager->windowTitle(), "Profile Manager - " + other());
    EXPECT_EQ(dock->getFilepath(), other()) << "the view is saved there from now on";
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(profileNames(), QStringList{"third"});
    EXPECT_EQ(viewed(), QStringList{"testB"});
    dock->m_viewer->doubleClickEvent("testC");
    dock->saveView();
    EXPECT_TRUE(readFile(other()).contains("<pcviewed>testC</pcviewed>"));
    EXPECT_FALSE(readFile(path()).contains("third")) << "the first file stays as it was";
    EXPECT_EQ(boxes.take(), QStringList());
}

TEST_F(CounterManagerFile, CancelReadsTheFirstFileAgain)
{
    writeOther();
    FileAnswer answer(other());
    manager->openProfile();
    press(QDialogButtonBox::Cancel);
    EXPECT_TRUE(isRegistered("perFrame"));
    EXPECT_FALSE(isRegistered("others"));
    EXPECT_EQ(dock->getFilepath(), path());
    EXPECT_EQ(profileNames(), (QStringList{"first", "second"}));
    EXPECT_EQ(dock->getDocument().elementsByTagName("profile").size(), 2);
}

TEST_F(CounterManagerFile, AFileWithoutCountersIsRefusedAndNotWrittenOver)
{
    const QByteArray page = "<html><profiles><profile name='x'/></profiles></html>";
    writeFile(other(), page);
    FileAnswer answer(other());
    manager->openProfile();
    EXPECT_EQ(boxes.take(),
              QStringList{refused + "The file does not contain information about performance counters."});
    EXPECT_EQ(tabs(), (QStringList{"first", "second"}));
    EXPECT_TRUE(isRegistered("perFrame"));
    EXPECT_EQ(manager->windowTitle(), "Profile Manager - " + path());
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(readFile(other()), page);
    EXPECT_EQ(namesOf(path(), "profile"), (QStringList{"first", "second"}));
}

TEST_F(CounterManagerFile, ReportsAFileThatCannotBeRead)
{
    // Nobody can open a socket as a file.
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(other());
    ASSERT_LT(std::size_t(name.size()), sizeof address.sun_path);
    std::copy(name.begin(), name.end(), address.sun_path);
    const int handle = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    FileAnswer answer(other());
    manager->openProfile();
    close(handle);
    EXPECT_EQ(boxes.take(),
              QStringList{refused + "Cannot read file " + other() + ":\n" + qt_error_string(ENXIO) + '.'});
    EXPECT_EQ(tabs(), (QStringList{"first", "second"}));
    EXPECT_EQ(dock->getFilepath(), path());
}

TEST_F(CounterManagerFile, NoChoiceOpensAndSavesNothing)
{
    for (const auto act :
         {&SoPerfCounterProfileManager::openProfile, &SoPerfCounterProfileManager::saveAsProfile}) {
        FileAnswer answer("");
        (manager->*act)();
        EXPECT_FALSE(answer.caption.isEmpty());
    }
    EXPECT_EQ(boxes.take(), QStringList());
    EXPECT_EQ(dock->getFilepath(), path());
}

TEST_F(CounterManagerFile, SaveAsWritesEnabledCustomCountersAndSwitchesToTheFile)
{
    CustomCounter unwanted;
    unwanted.name = "unwanted";
    ASSERT_TRUE(unwanted.registerIt());
    SoPerfCounterManager::getInstance()->disableCounter("unwanted");
    QSignalSpy told(manager, &SoPerfCounterProfileManager::filepathChanged);
    FileAnswer answer(other());
    manager->actionSaveProfile->trigger();
    EXPECT_EQ(answer.caption, "Save performance counter profile");
    EXPECT_EQ(answer.filters, QStringList{"XML Files (*.xml)"});
    EXPECT_EQ(namesOf(other(), "counter"), QStringList{"perFrame"});
    EXPECT_EQ(namesOf(other(), "profile"), (QStringList{"first", "second"}));
    EXPECT_EQ(namesOf(other(), "profileview"), QStringList{"second"});
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told.first().first().toString(), other());
    EXPECT_EQ(manager->windowTitle(), "Profile Manager - " + other());
}

TEST_F(CounterManagerFile, ReportsAFileThatCannotBeWritten)
{
    FileAnswer answer("/proc/counters.xml");
    manager->saveAsProfile();
    EXPECT_EQ(boxes.take(),
              QStringList{refused + "Cannot write file /proc/counters.xml:\nNo such file or directory."});
    EXPECT_EQ(dock->getFilepath(), path());
    manager->setFilepath("/dev/full");
    manager->saveProfile();
    EXPECT_EQ(boxes.take(), QStringList{refused + "Cannot write file /dev/full:\nIt is no regular file."});
}

TEST_F(CounterManagerFile, AfterARefusedOkSaveAsLetsItClose)
{
    manager->setFilepath("");
    press(QDialogButtonBox::Ok);
    ASSERT_TRUE(manager);
    EXPECT_EQ(boxes.take().size(), 1);
    {
        FileAnswer answer(other());
        manager->saveAsProfile();
    }
    manager->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(manager);
    EXPECT_EQ(boxes.take(), QStringList());
    EXPECT_EQ(profileNames(), (QStringList{"first", "second"}));
}

TEST_F(CounterManagerFile, CancelAfterARefusedOkClosesIt)
{
    manager->setFilepath("");
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(boxes.take().size(), 1);
    press(QDialogButtonBox::Cancel);
    EXPECT_FALSE(manager);
    EXPECT_EQ(dock->getFilepath(), path()) << "the file to fall back on";
}
