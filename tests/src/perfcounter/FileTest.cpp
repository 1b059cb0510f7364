// SPDX-License-Identifier: MIT
// The profile file as people write it by hand: broken, huge, in other encodings; and as the tool writes it.
#include "CounterFixture.h"

#include <QDomDocument>

using CounterFile = CounterHome;

namespace
{

const QString Title = QStringLiteral("Performance counter profile: ");

QByteArray withProfile(const QByteArray& name)
{
    return "<perfCounterModule><profiles><profile name=\"" + name + "\"/></profiles></perfCounterModule>";
}

} // namespace

TEST_F(CounterFile, ReportsWhereXmlIsBrokenAndStartsEmpty)
{
    writeFile("<perfCounterModule>\n  <customPC>\n</perfCounterModule>\n");
    open();
    const QStringList said = boxes.take();
    ASSERT_EQ(said.size(), 1) << "it could be opened";
    EXPECT_TRUE(said[0].startsWith(Title + "Parse error at line 3, column ")) << said[0].toStdString();
    EXPECT_EQ(said[0].count('\n'), 1);
    EXPECT_EQ(dock->getFilepath(), "");
    EXPECT_EQ(readFile(path()), "<perfCounterModule>\n  <customPC>\n</perfCounterModule>\n")
        << "the file stays";
    const QDomElement root = dock->getDocument().documentElement();
    EXPECT_EQ(root.tagName(), "perfCounterModule");
    QStringList sections;
    for (QDomElement e = root.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        sections.append(e.tagName());
    EXPECT_EQ(sections, (QStringList{"customPC", "profiles", "profileview"}));
    const QDomProcessingInstruction declaration = dock->getDocument().firstChild().toProcessingInstruction();
    EXPECT_EQ(declaration.target(), "xml");
    EXPECT_EQ(declaration.data(), "version='1.0' encoding='UTF-8'");
}

TEST_F(CounterFile, ReportsAFolderInItsPlace)
{
    QDir().mkpath(path());
    open();
    const QStringList said = boxes.take();
    ASSERT_EQ(said.size(), 2);
    EXPECT_TRUE(said[0].startsWith("DOM Bookmarks: Cannot read file " + path() + ":\n"))
        << said[0].toStdString();
}

TEST_F(CounterFile, IsReadInTheEncodingItNames)
{
    const QString name = QString::fromUtf8("mètre");
    const QByteArray utf16 = [&] {
        const QString text = QChar(QChar::ByteOrderMark) + QString::fromUtf8(withProfile(name.toUtf8()));
        return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    }();
    const QByteArray contents[] = {withProfile(name.toUtf8()),
                                   "<?xml version='1.0' encoding='ISO-8859-1'?>" +
                                       withProfile(name.toLatin1()),
                                   "\xef\xbb\xbf" + withProfile(name.toUtf8()), utf16};
    for (const QByteArray& content : contents) {
        writeFile(content);
        open();
        EXPECT_EQ(boxes.take(), QStringList());
        EXPECT_EQ(profileNames(), QStringList{name}) << content.toStdString();
    }
    // Whatever it was, it is saved in UTF-8.
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_TRUE(readFile(path()).contains(name.toUtf8()));
}

TEST_F(CounterFile, IsWrittenToTheLetter)
{
    writeFile("<perfCounterModule><profiles><profile "
              "name='p'><listcounters><pc>testA</pc><pc>testB</pc></listcounters>"
              "<listview><pcviewed>testB</pcviewed><pcviewed>gone</pcviewed></listview></profile></profiles>"
              "<customPC><counter name='c' type='S'/></customPC></perfCounterModule>");
    open();
    dock->m_viewer->doubleClickEvent("testA");
    const int gone = 1;
    dock->m_viewer->doubleClickLegend(dock->m_viewer->m_legend->item(gone, 0));
    SoPerfCounterProfileManager* manager = openManager();
    manager->okButtonAction();
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_EQ(boxes.take(), QStringList());
    QByteArray written = readFile(path());
    written.replace("type=\"S\" name=\"c\"", "name=\"c\" type=\"S\""); // attributes have no order
    EXPECT_EQ(written.toStdString(), "<perfCounterModule>\n"
                                     "  <profiles>\n"
                                     "    <profile name=\"p\">\n"
                                     "      <listcounters>\n"
                                     "        <pc>testA</pc>\n"
                                     "        <pc>testB</pc>\n"
                                     "      </listcounters>\n"
                                     "      <listview>\n"
                                     "        <pcviewed>testB</pcviewed>\n"
                                     "        <pcviewed>testA</pcviewed>\n"
                                     "      </listview>\n"
                                     "    </profile>\n"
                                     "  </profiles>\n"
                                     "  <customPC>\n"
                                     "    <counter name=\"c\" type=\"S\">\n"
                                     "      <description></description>\n"
                                     "      <module></module>\n"
                                     "      <level>0</level>\n"
                                     "      <firstparent></firstparent>\n"
                                     "      <secondparent></secondparent>\n"
                                     "      <operation></operation>\n"
                                     "    </counter>\n"
                                     "  </customPC>\n"
                                     "  <profileview name=\"p\"/>\n"
                                     "</perfCounterModule>\n");
}

TEST_F(CounterFile, SavingTheViewTouchesOnlyTheFirstProfileOfItsName)
{
    writeFile("<perfCounterModule><profiles>"
              "<profile "
              "name='p'><listview><pcviewed>testA</pcviewed><pcviewed>testB</pcviewed></listview></profile>"
              "<profile name='q'><listview><pcviewed>testA</pcviewed></listview></profile>"
              "<profile name='p'><listview><pcviewed>testC</pcviewed></listview></profile>"
              "</profiles><profileview name='p'/></perfCounterModule>");
    open();
    dock->m_viewer->doubleClickLegend(dock->m_viewer->m_legend->item(0, 0));
    dock->m_viewer->doubleClickEvent("testC");
    dock->saveView();
    QDomDocument document;
    ASSERT_TRUE(document.setContent(readFile(path())));
    QStringList views;
    const QDomNodeList profiles = document.elementsByTagName("profile");
    for (int i = 0; i < profiles.size(); ++i) {
        QStringList names;
        const QDomNodeList viewedOnes = profiles.at(i).toElement().elementsByTagName("pcviewed");
        for (int k = 0; k < viewedOnes.size(); ++k)
            names.append(viewedOnes.at(k).toElement().text());
        views.append(names.join(' '));
    }
    EXPECT_EQ(views, (QStringList{"testB testC", "testA", "testC"}));
}

TEST_F(CounterFile, AFileWithoutAViewSelectsTheFirstProfile)
{
    writeFile(
        "<perfCounterModule><profiles><profile name='p'><listcounters><pc>testA</pc></listcounters></profile>"
        "<profile name='q'/></profiles></perfCounterModule>");
    open();
    EXPECT_EQ(dock->getCurrentProfile(), 0);
    EXPECT_EQ(offered(), QStringList{"testA"});
}

TEST_F(CounterFile, NamesAreComparedWithTheirCase)
{
    writeFile("<perfCounterModule><profiles><profile name='one'/><profile name='Two'/></profiles>"
              "<profileview name='two'/><Profiles><profile name='three'/></Profiles></perfCounterModule>");
    open();
    EXPECT_EQ(dock->getCurrentProfile(), 0);
    EXPECT_EQ(profileNames(), (QStringList{"one", "Two"}));
}

TEST_F(CounterFile, OnlyTheFirstSectionOfAKindCounts)
{
    writeFile("<perfCounterModule><profiles><profile name='one'/></profiles><profiles><profile "
              "name='two'/></profiles>"
              "</perfCounterModule>");
    open();
    EXPECT_EQ(profileNames(), QStringList{"one"});
}

TEST_F(CounterFile, HugeTextsAreReadAndShownByTheirBeginning)
{
    constexpr int Huge = 1024 * 1024;
    writeFile(
        "<perfCounterModule><customPC><counter name='wordy' type='A'><description>" + QByteArray(Huge, 'd') +
        "</description></counter></customPC><profiles><profile name='p'/></profiles></perfCounterModule>");
    open();
    EXPECT_EQ(boxes.take(), QStringList());
    const SbString& description = SoPerfCounterManager::getInstance()->getCounter("wordy")->getDescription();
    EXPECT_EQ(int(description.getLength()), Huge);
    SoPerfCounterProfileManager* manager = openManager();
    const int row = manager->m_listCounter->findItems("wordy", Qt::MatchExactly).constFirst()->row();
    const QString beginning = QString(1000, 'd') + QChar(0x2026);
    EXPECT_EQ(manager->m_listCounter->item(row, 5)->text(), beginning);
    dock->m_viewer->doubleClickEvent("wordy");
    EXPECT_EQ(dock->m_viewer->m_legend->item(0, 4)->text(), beginning);
}

TEST_F(CounterFile, AThousandProfilesAreRead)
{
    QByteArray content = "<perfCounterModule><profiles>";
    for (int i = 0; i < 1000; ++i)
        content += "<profile name='p" + QByteArray::number(i) +
                   "'><listcounters><pc>testA</pc></listcounters></profile>";
    writeFile(content + "</profiles><profileview name='p999'/></perfCounterModule>");
    open();
    EXPECT_EQ(boxes.take(), QStringList());
    EXPECT_EQ(dock->m_listConfig->count(), 1000);
    EXPECT_EQ(dock->getCurrentProfile(), 999);
}

TEST_F(CounterFile, ReportsAFileThatCannotBeWritten)
{
    writeExample();
    open();
    dock->changeFilepath("/proc/nowhere/PerfCounter.xml");
    dock->saveView();
    EXPECT_EQ(boxes.take(),
              QStringList{Title + "Cannot write file /proc/nowhere/PerfCounter.xml:\nNo such file or "
                                  "directory."});
    dock->changeFilepath("/dev/full");
    dock->saveView();
    EXPECT_EQ(boxes.take(), QStringList{Title + "Cannot write file /dev/full:\nIt is no regular file."});
}

TEST_F(CounterFile, ANameThatTheViewHoldsTwiceIsSavedOnce)
{
    writeFile("<perfCounterModule><profiles><profile name='p'/></profiles></perfCounterModule>");
    open();
    for (const char* name : {"testB", "testA", "testB", "testA"})
        dock->addPcViewed(name);
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    const QByteArray saved = readFile(path());
    EXPECT_EQ(saved.count("<pcviewed>"), 2);
    EXPECT_LT(saved.indexOf("testB"), saved.indexOf("testA"));
}
