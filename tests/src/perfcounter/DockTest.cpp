// SPDX-License-Identifier: MIT
// The dock with its file: what is read at start, what is saved, and what the boxes say.
#include "CounterFixture.h"
#include "CounterProfileFile.h"
#include "SoPerfCounterPreSelectedList.h"
#include "SpxPerfCounterExtension.h"

#include <QColorDialog>
#include <QDomDocument>
#include <QLabel>

#include <qwt_plot.h>

using CounterDock = CounterHome;

TEST_F(CounterDock, ReadsProfilesCountersAndTheViewOfTheFile)
{
    writeExample();
    open();
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_EQ(profileNames(), (QStringList{"first", "second"}));
    EXPECT_EQ(dock->m_listConfig->currentText(), "second");
    EXPECT_EQ(dock->getCurrentProfile(), 1);
    EXPECT_EQ(offered(), (QStringList{"testA", "testB", "testC"})) << "sorted";
    EXPECT_EQ(viewed(), QStringList{"testB"});
    const SoPerfCounter* custom = SoPerfCounterManager::getInstance()->getCounter("perFrame");
    ASSERT_TRUE(custom);
    EXPECT_TRUE(custom->isCustom());
    EXPECT_EQ(custom->getLevel(), SoPerfCounter::HIGH);
    EXPECT_EQ(custom->getSecondParent(), SbName("testB"));
    EXPECT_FALSE(isRegistered("odd")) << "a type that is neither A nor S is skipped";
    EXPECT_EQ(a->getDescription(), SbString("for tests")) << "a taken name is left alone";
}

TEST_F(CounterDock, WithoutAFileItSaysSoTwiceAndCannotSave)
{
    open();
    const QStringList said = boxes.take();
    ASSERT_EQ(said.size(), 2);
    EXPECT_EQ(said[0],
              QStringLiteral("DOM Bookmarks: Cannot read file %1:\nNo such file or directory.").arg(path()));
    EXPECT_EQ(said[1],
              "Performance counter profile: Parse error at line 1, column 1:\nunexpected end of file");
    EXPECT_EQ(dock->m_listConfig->count(), 0);
    EXPECT_EQ(dock->getCurrentProfile(), -1);
    EXPECT_TRUE(offered().isEmpty());
    EXPECT_FALSE(dock->m_propertiesGroupBox->isEnabled());
    EXPECT_EQ(dock->getFilepath(), "");
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_EQ(boxes.take(),
              QStringList{"Performance counter profile: Cannot write file :\nNo file name specified."});
}

TEST_F(CounterDock, WithoutAHomeThePathStartsAtTheRoot)
{
    qunsetenv("XSGHOME");
    EXPECT_EQ(counterProfileFile::defaultPath(), "/data/Scopix/PerfCounter.xml");
}

TEST_F(CounterDock, AnotherRootIsRefusedAndChangesNothing)
{
    writeFile("<somethingElse><profiles><profile name='x'/></profiles></somethingElse>");
    open();
    EXPECT_EQ(boxes.take(),
              QStringList{"Performance counter profile: The file does not contain information about "
                          "performance counters."});
    EXPECT_TRUE(profileNames().isEmpty());
}

TEST_F(CounterDock, AnUnknownViewSelectsTheFirstProfile)
{
    writeFile("<perfCounterModule><profiles><profile "
              "name='one'><listcounters><pc>testA</pc></listcounters></profile>"
              "<profile name='two'/></profiles><profileview name='none'/></perfCounterModule>");
    open();
    EXPECT_EQ(dock->getCurrentProfile(), 0);
    EXPECT_EQ(offered(), QStringList{"testA"});
}

TEST_F(CounterDock, ALevelThatIsNoNumberIsLow)
{
    writeFile(
        "<perfCounterModule><customPC><counter name='vague' type='S'><level>abc</level></counter></customPC>"
        "</perfCounterModule>");
    open();
    ASSERT_TRUE(isRegistered("vague"));
    EXPECT_EQ(SoPerfCounterManager::getInstance()->getCounter("vague")->getLevel(), SoPerfCounter::LOW);
    EXPECT_EQ(SoPerfCounterManager::getInstance()->getCounter("vague")->getTypeCode(), SbString("S"));
}

TEST_F(CounterDock, MissingSectionsAndUnknownElementsDoNotDisturb)
{
    writeFile(
        "<perfCounterModule strange='1'><unknown/><profiles><profile name='p' more='2'><other/></profile>"
        "</profiles></perfCounterModule>");
    open();
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_EQ(profileNames(), QStringList{"p"});
    dock->m_viewer->doubleClickEvent("testA");
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_TRUE(boxes.take().isEmpty());
    open();
    EXPECT_EQ(viewed(), QStringList{"testA"});
}

TEST_F(CounterDock, AnEntityBombIsRefused)
{
    QByteArray bomb = "<!DOCTYPE a [<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i < 12; ++i) {
        bomb += "<!ENTITY e" + QByteArray::number(i) + " \"";
        for (int k = 0; k < 10; ++k)
            bomb += "&e" + QByteArray::number(i - 1) + ";";
        bomb += "\">";
    }
    writeFile(bomb + "]><perfCounterModule><customPC>&e11;</customPC></perfCounterModule>");
    open();
    const QStringList said = boxes.take();
    EXPECT_TRUE(profileNames().isEmpty());
    EXPECT_LE(said.size(), 1);
}

TEST_F(CounterDock, ElementsNestedWithoutEndAreRefused)
{
    writeFile("<perfCounterModule>" + QByteArray("<a>").repeated(100'000));
    open();
    EXPECT_EQ(boxes.take(), QStringList{"Performance counter profile: Parse error at line 1, column 319:\n"
                                        "elements are nested deeper than 100 levels"});
    writeFile("<perfCounterModule>" + QByteArray("<a>").repeated(99) + QByteArray("</a>").repeated(99) +
              "</perfCounterModule>");
    open();
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(CounterDock, RefusesAFileThatWouldBeUnreadableOnceSaved)
{
    const std::pair<const char*, const char*> files[] = {
        {"<n:perfCounterModule xmlnsn:='u'/>", "1, column 29:\n\"xmlnsn:\" is not a name that can be saved"},
        {"<perfCounterModule>\n\n <a/>b\x01</perfCounterModule>",
         "3, column 7:\nthe character U+0001 cannot be saved"},
        {"<perfCounterModule>\n<a n='&#12;'/></perfCounterModule>",
         "2, column 11:\nthe character U+000C cannot be saved"},
        {"<perfCounterModule>\n<a>&#xD800;</a></perfCounterModule>",
         "2, column 11:\nthe character U+D800 cannot be saved"},
        {"<perfCounterModule>\n<a>&#xFFFE;</a></perfCounterModule>",
         "2, column 11:\nthe character U+FFFE cannot be saved"},
        {"<perfCounterModule>\n<a>&gone;</a></perfCounterModule>",
         "2, column 9:\nthe entity \"gone\" is not declared"},
        {"<perfCounterModule x:y:='u'/>", "1, column 23:\n\"x:y:\" is not a name that can be saved"},
        {"<perfCounterModule>\n<a:b:c/></perfCounterModule>",
         "2, column 5:\n\"a:b:c\" is not a name that can be saved"},
        {"<perfCounterModule>\n<a b='1'\n c='1' b='2'/></perfCounterModule>",
         "3, column 14:\nAttribute 'b' redefined."}};
    for (const auto& [file, expected] : files) {
        writeFile(file);
        open();
        EXPECT_EQ(boxes.take().join('|').toStdString(),
                  std::string("Performance counter profile: Parse error at line ") + expected);
    }
}

TEST_F(CounterDock, AFileInAnotherEncodingIsSavedInUtf8)
{
    writeFile("<?xml version='1.0' encoding='ISO-8859-1'?>\n<perfCounterModule><profiles>"
              "<profile name='Gr\xf6\xdf"
              "e'/></profiles></perfCounterModule>");
    for (int turn = 0; turn < 2; ++turn) {
        open();
        EXPECT_EQ(profileNames(), QStringList{QString::fromUtf8(u8"Größe")});
        dock->m_viewer->doubleClickEvent("testA");
        QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
        EXPECT_TRUE(boxes.take().isEmpty());
        QFile saved(path());
        ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
        const QByteArray bytes = saved.readAll();
        EXPECT_TRUE(bytes.startsWith("<?xml version='1.0' encoding='UTF-8'?>\n")) << bytes.constData();
        EXPECT_TRUE(bytes.contains(u8"Größe")) << bytes.constData();
    }
}

TEST_F(CounterDock, SavingTheViewKeepsTheRestOfTheFile)
{
    writeExample();
    open();
    dock->m_viewer->doubleClickEvent("testC");
    EXPECT_EQ(viewed(), (QStringList{"testB", "testC"}));
    dock->m_listConfig->setCurrentIndex(0);
    dock->m_listConfig->setCurrentIndex(1);
    EXPECT_EQ(viewed(), (QStringList{"testB", "testC"})) << "the profile remembers its view";
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    QDomDocument document;
    ASSERT_TRUE(document.setContent(readFile(path())));
    EXPECT_EQ(document.documentElement().firstChildElement("profileview").attribute("name"), "second");
    EXPECT_EQ(document.documentElement().firstChildElement("customPC").elementsByTagName("counter").size(),
              3);
    open();
    EXPECT_EQ(viewed(), (QStringList{"testB", "testC"}));
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(CounterDock, ADragCarriesEachNameWithItsSeparator)
{
    writeExample();
    open();
    for (const int row : {2, 0, 1})
        dock->m_preSelectedListView->item(row)->setSelected(true);
    EXPECT_EQ(dock->m_preSelectedListView->dragText(), "testC##testA##testB##");
}

TEST_F(CounterDock, ADoubleClickInTheListShowsTheCounter)
{
    writeExample();
    open();
    dock->m_preSelectedListView->setCurrentRow(0);
    emit dock->m_preSelectedListView->doubleClicked({});
    EXPECT_EQ(viewed(), (QStringList{"testB", "testA"}));
    EXPECT_EQ(*dock->getProfiles()[1]->getView(), (QStringList{"testB", "testA"}));
}

TEST_F(CounterDock, ExactlyOneLegendRowEnablesTheProperties)
{
    writeExample();
    open();
    dock->m_viewer->doubleClickEvent("testA");
    QTableWidget* legend = dock->m_viewer->m_legend;
    legend->selectRow(0);
    EXPECT_TRUE(dock->m_propertiesGroupBox->isEnabled());
    const QColor color = dock->m_viewer->findViewed("testB")->getColor();
    EXPECT_EQ(dock->m_colorButton->styleSheet(), QStringLiteral("background-color: rgb(%1,%2,%3);")
                                                     .arg(color.red())
                                                     .arg(color.green())
                                                     .arg(color.blue()));
    EXPECT_EQ(dock->m_scaleEdit->text(), "1");
    legend->selectAll();
    EXPECT_FALSE(dock->m_propertiesGroupBox->isEnabled());
}

TEST_F(CounterDock, AnotherColourReachesTheCurveAndTheButton)
{
    writeExample();
    open();
    dock->m_viewer->m_legend->selectRow(0);
    QTimer::singleShot(0, qApp, [] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->setCurrentColor(QColor(200, 100, 50));
        dialog->accept();
    });
    QTest::mouseClick(dock->m_colorButton, Qt::LeftButton);
    EXPECT_EQ(dock->m_viewer->findViewed("testB")->getColor(), QColor(200, 100, 50));
    EXPECT_EQ(dock->m_colorButton->styleSheet(), "background-color: rgb(200,100,50);");
    EXPECT_EQ(dock->m_colorButton->grab().toImage().pixelColor(7, 3), QColor(200, 100, 50))
        << "just as the curve";
    EXPECT_EQ(dock->m_viewer->m_legend->selectedItems().size(), 5) << "the row stays selected";
}

TEST_F(CounterDock, ACancelledColourChangesNothing)
{
    writeExample();
    open();
    dock->m_viewer->m_legend->selectRow(0);
    const QColor color = dock->m_viewer->findViewed("testB")->getColor();
    const QString sheet = dock->m_colorButton->styleSheet();
    QColor offeredColor;
    QTimer::singleShot(0, qApp, [&] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        EXPECT_EQ(dialog->parent(), dock.get());
        offeredColor = dialog->currentColor();
        dialog->setCurrentColor(QColor(1, 2, 3));
        dialog->reject();
    });
    QTest::mouseClick(dock->m_colorButton, Qt::LeftButton);
    EXPECT_EQ(offeredColor, color);
    EXPECT_EQ(dock->m_viewer->findViewed("testB")->getColor(), color);
    EXPECT_EQ(dock->m_colorButton->styleSheet(), sheet);
}

TEST(CounterExtension, HasItsNames)
{
    const SpxPerfCounterExtension extension;
    EXPECT_EQ(extension.getName(), SbString("PerfCounter"));
    EXPECT_EQ(extension.getVendor(), SbString("Arvex"));
    EXPECT_EQ(extension.getDescription(), SbString("tools to inspect performance of the scene graph."));
    EXPECT_EQ(extension.getVersion(), SbString("1.0.0"));
}

TEST(CounterExtension, ShowsHowItIsSwitchedOn)
{
    for (const char* value : {static_cast<const char*>(nullptr), "", "0"}) {
        if (value)
            qputenv("XSG_PERFCOUNTER_ENABLE", value);
        else
            qunsetenv("XSG_PERFCOUNTER_ENABLE");
        TestHost host;
        SpxPerfCounterExtension extension;
        host.start(extension);
        auto* dock = host.window().findChild<QDockWidget*>();
        ASSERT_TRUE(dock);
        EXPECT_EQ(dock->windowTitle(), "Performance Counter");
        EXPECT_GE(dock->minimumWidth(), 213) << "the title may want more";
        EXPECT_GE(dock->minimumHeight(), 114);
        EXPECT_EQ(dock->widget()->objectName(), "dockWidgetContents");
        EXPECT_EQ(dock->findChild<QLabel*>()->text(), "To enable the performance counter extension, you need "
                                                      "set the XSG_PERFCOUNTER_ENABLE environment "
                                                      "variable to 1 and restart the application.");
        EXPECT_EQ(host.takeLog(), (TestHost::Log{"addDockWidget \"Performance Counter\" 2",
                                                 "attachExtension \"PerfCounter\" true"}));
        host.stop(extension);
    }
    qunsetenv("XSG_PERFCOUNTER_ENABLE");
}

TEST_F(CounterDock, WithTheSwitchTheExtensionDocksTheTool)
{
    writeExample();
    qputenv("XSG_PERFCOUNTER_ENABLE", "1");
    TestHost host;
    SpxPerfCounterExtension extension;
    host.window().show();
    host.start(extension);
    auto* tool = host.window().findChild<SoPerfCounterDockWin*>();
    ASSERT_TRUE(tool);
    EXPECT_TRUE(tool->isVisible());
    EXPECT_EQ(tool->windowTitle(), "Performance Counter");
    EXPECT_EQ(tool->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(tool->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(host.window().dockWidgetArea(tool), Qt::RightDockWidgetArea);
    EXPECT_EQ(host.takeLog(), (TestHost::Log{"addDockWidget \"Performance Counter\" 2",
                                             "attachExtension \"PerfCounter\" true"}));
    tool->m_viewer->doubleClickEvent("testA");
    tool->m_viewer->graphView();
    extension.hide();
    EXPECT_FALSE(tool->isVisible());
    extension.show();
    EXPECT_TRUE(tool->isVisible());
    EXPECT_EQ(tool->getCurrentProfile(), 1);
    EXPECT_EQ(tool->m_viewer->getViewed()->size(), 2);
    EXPECT_TRUE(tool->m_viewer->getGraphPlot()->isVisible());
    EXPECT_EQ(host.takeLog(), TestHost::Log());
    host.stop(extension);
    EXPECT_EQ(host.takeLog(),
              (TestHost::Log{"removeDockWidget \"Performance Counter\"", "detachExtension \"PerfCounter\""}));
    qunsetenv("XSG_PERFCOUNTER_ENABLE");
}
