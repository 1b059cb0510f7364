// SPDX-License-Identifier: MIT
// Files with very many or very long things in them: what they hold is kept, and no more is made of it than is
// seen.
#include "CounterFixture.h"
#include "SoPerfCounterCreateCounter.h"
#include "SoPerfCounterCurve.h"
#include "SoPerfCounterPage.h"

#include <QDomDocument>
#include <QFontMetrics>
#include <QTabBar>
#include <QTableWidget>

#include <qwt_plot.h>

class CounterMany : public CounterHome
{
protected:
    static QByteArray profileOf(const QByteArray& name, const QByteArray& counters = "<pc>testA</pc>")
    {
        return "<profile name='" + name + "'><listcounters>" + counters +
               "</listcounters><listview/></profile>";
    }
    void openProfiles(const QByteArray& profiles, const QByteArray& custom = {})
    {
        writeFile("<perfCounterModule><customPC>" + custom + "</customPC><profiles>" + profiles +
                  "</profiles></perfCounterModule>");
        open();
        EXPECT_EQ(boxes.take(), QStringList());
    }
    static int tablesIn(const QWidget& window) { return window.findChildren<QTableWidget*>().size(); }
    void press(SoPerfCounterProfileManager& manager, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(manager.m_buttonBox->button(button), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(CounterMany, MakesTablesOnlyForTabsThatWereShown)
{
    QByteArray profiles;
    for (int i = 0; i < 1000; ++i)
        profiles += profileOf("p" + QByteArray::number(i), i % 2 ? "<pc>testB</pc>" : "<pc>testA</pc>");
    openProfiles(profiles);
    SoPerfCounterProfileManager& manager = *openManager();
    ASSERT_EQ(manager.m_tabProfile->count(), 1000);
    EXPECT_EQ(tablesIn(manager), 2) << "all counters, and the first profile";
    manager.m_tabProfile->setCurrentIndex(999);
    EXPECT_EQ(tablesIn(manager), 3);
    auto* page = static_cast<SoPerfCounterPage*>(manager.m_tabProfile->widget(999));
    ASSERT_EQ(page->m_tableProfile->rowCount(), 1);
    EXPECT_EQ(page->m_tableProfile->item(0, 0)->text(), "testB");
    page = static_cast<SoPerfCounterPage*>(manager.m_tabProfile->widget(500));
    EXPECT_EQ(page->getTableProfile()->item(0, 0)->text(), "testA") << "who asks gets one";
    press(manager, QDialogButtonBox::Ok);
    EXPECT_EQ(dock->getProfiles().size(), 1000);
    EXPECT_EQ(dock->getCurrentProfile(), 999);
}

TEST_F(CounterMany, RemovingATabShowsTheNextOnesCounters)
{
    openProfiles(profileOf("one") + profileOf("two", "<pc>testB</pc>") +
                 profileOf("three", "<pc>testC</pc>"));
    SoPerfCounterProfileManager& manager = *openManager();
    for (const char* expected : {"testB", "testC"}) {
        manager.deleteProfile();
        auto* page = static_cast<SoPerfCounterPage*>(manager.m_tabProfile->currentWidget());
        ASSERT_TRUE(page->m_tableProfile);
        EXPECT_TRUE(page->m_tableProfile->isVisible());
        EXPECT_GT(page->m_tableProfile->width(), page->width() - 10) << "and laid out";
        EXPECT_EQ(page->m_tableProfile->item(0, 0)->text(), expected);
    }
    press(manager, QDialogButtonBox::Ok);
    EXPECT_EQ(profileNames(), QStringList{"three"});
}

TEST_F(CounterMany, NamesOfMegabytesAreKeptAndShownByTheirBeginning)
{
    const QByteArray name(4'000'000, 'n');
    openProfiles(profileOf("one") + profileOf(name, "<pc>" + name + "</pc>"),
                 "<counter name='" + name + "' type='A'/>");
    dock->m_listConfig->setCurrentIndex(1);
    EXPECT_LT(dock->m_listConfig->currentText().size(), 200);
    EXPECT_LT(dock->m_listConfig->minimumSizeHint().width(), 300) << "nor does it make the dock wide";
    EXPECT_EQ(offered(), QStringList{name});
    const auto widthIn = [](const QAbstractItemView& view, int column) {
        return view.itemDelegate()->sizeHint({}, view.model()->index(0, column)).width();
    };
    EXPECT_LT(widthIn(*dock->m_preSelectedListView, 0), 20'000);

    dock->m_preSelectedListView->setCurrentRow(0);
    emit dock->m_preSelectedListView->doubleClicked({});
    EXPECT_EQ(viewed(), QStringList{name});
    dock->m_viewer->textView();
    EXPECT_LT(widthIn(*dock->m_viewer->m_textView, 0), 20'000);
    EXPECT_LT(widthIn(*dock->m_viewer->m_legend, 0), 20'000);
    dock->m_viewer->m_legend->selectRow(0);
    EXPECT_TRUE(dock->m_propertiesGroupBox->isEnabled()) << "it is found by its whole name";

    SoPerfCounterProfileManager& manager = *openManager();
    EXPECT_LT(manager.m_tabProfile->tabText(1).size(), 200);
    EXPECT_LE(manager.m_listCounter->columnWidth(0), 400);
    auto* page = static_cast<SoPerfCounterPage*>(manager.m_tabProfile->currentWidget());
    EXPECT_LT(widthIn(*page->getTableProfile(), 0), 20'000);
    press(manager, QDialogButtonBox::Ok);
    EXPECT_EQ(profileNames(), (QStringList{"one", name}));
    QDomDocument document;
    ASSERT_TRUE(document.setContent(readFile(path())));
    EXPECT_EQ(document.elementsByTagName("counter").at(0).toElement().attribute("name"), name);
    EXPECT_EQ(document.elementsByTagName("pcviewed").at(0).toElement().text(), name);
}

TEST_F(CounterMany, ACounterIsMadeFromTheWholeNamesOfItsParents)
{
    const QString name(5000, 'n');
    SoPerfCounterCreateCounter dialog(name, "testB");
    EXPECT_LT(dialog.sizeHint().width(), 5000);
    dialog.m_name->setText("sum");
    dialog.okButtonAction();
    const SoPerfCounter* made = SoPerfCounterManager::getInstance()->getCounter("sum");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->getFirstParent(), toCounterName(name));
    EXPECT_EQ(made->getSecondParent(), SbName("testB"));
}

TEST_F(CounterMany, DistinguishesProfilesWithTheSameBeginning)
{
    const QByteArray same(5000, 's');
    writeFile("<perfCounterModule><profiles>" + profileOf(same + "1") +
              profileOf(same + "2", "<pc>testB</pc>") + "</profiles><profileview name='" + same +
              "2'/></perfCounterModule>");
    open();
    EXPECT_EQ(dock->getCurrentProfile(), 1);
    EXPECT_EQ(offered(), QStringList{"testB"});
}

TEST_F(CounterMany, ShowsAnAmpersandInATab)
{
    openProfiles(profileOf("R&amp;D"));
    SoPerfCounterProfileManager& manager = *openManager();
    EXPECT_EQ(manager.m_tabProfile->tabText(0), "R&&D") << "which is how a tab writes one";
    press(manager, QDialogButtonBox::Ok);
    EXPECT_EQ(profileNames(), QStringList{"R&D"});
}

TEST_F(CounterMany, AViewOfThousandsKeepsItsOrder)
{
    QStringList names;
    for (int i = 0; i < 3000; ++i)
        names.append(QStringLiteral("counter%1").arg(i));
    SoPerfCounterViewer viewer;
    viewer.getTimer()->stop();
    viewer.setViewList(&names);
    const SoPerfCounterPcViewed* kept = viewer.findViewed("counter2999");
    std::reverse(names.begin(), names.end());
    names.removeAt(1);
    names.append(names.first());
    viewer.setViewList(&names);
    ASSERT_EQ(viewer.getViewed()->size(), 2999);
    EXPECT_EQ(viewer.getViewed()->first(), kept);
    for (int i = 0; i < 2999; ++i) {
        ASSERT_EQ(viewer.getViewed()->at(i)->getName(), names[i]);
        ASSERT_EQ(viewer.getCurvePlot()->getCurveList()[i]->title().text(), names[i]);
        ASSERT_EQ(viewer.getCurvePlot()->getCurveList()[i]->pen().color(),
                  viewer.getViewed()->at(i)->getColor());
    }
}
