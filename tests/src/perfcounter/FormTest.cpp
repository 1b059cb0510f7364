// SPDX-License-Identifier: MIT
// What the forms are known by: the names of their parts, their texts, tool tips, sizes and keys.
#include "CounterFixture.h"
#include "SoPerfCounterCreateCounter.h"
#include "SoPerfCounterCreateProfile.h"
#include "SoPerfCounterPage.h"
#include "SoPerfCounterPreSelectedList.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QSignalSpy>

namespace
{

struct Part {
    const char* name;
    const char* kind;
    const char* text; // null where it has none
    const char* toolTip;
};

QString textOf(const QWidget& widget)
{
    for (const char* property : {"text", "title"}) {
        if (widget.property(property).isValid())
            return widget.property(property).toString();
    }
    return {};
}

void expectParts(const QObject& form, const std::vector<Part>& parts)
{
    for (const Part& part : parts) {
        const auto* widget = form.findChild<QWidget*>(part.name);
        ASSERT_TRUE(widget) << part.name;
        EXPECT_TRUE(widget->inherits(part.kind)) << part.name;
        EXPECT_EQ(textOf(*widget), part.text) << part.name;
        EXPECT_EQ(widget->toolTip(), part.toolTip) << part.name;
    }
}

QStringList itemsOf(const QComboBox& box)
{
    QStringList items;
    for (int i = 0; i < box.count(); ++i)
        items.append(box.itemText(i));
    return items;
}

QStringList columnsOf(const QTableWidget& table)
{
    QStringList columns;
    for (int i = 0; i < table.columnCount(); ++i)
        columns.append(table.horizontalHeaderItem(i)->text());
    return columns;
}

// The image of the resource, in the density of the icon's own.
void expectIcon(const QAbstractButton& button, const char* file)
{
    const QIcon icon(QStringLiteral(":/PerfCounter_icons/Icons/") + QLatin1String(file));
    ASSERT_FALSE(icon.availableSizes().isEmpty()) << file;
    EXPECT_EQ(button.icon().pixmap(16).toImage(), icon.pixmap(16).toImage())
        << button.objectName().toStdString();
}

const QStringList CounterColumns{"Name", "", "Type", "Level", "Module", "Description"};

} // namespace

using CounterForms = CounterHome;

TEST_F(CounterForms, OfTheDock)
{
    writeExample();
    open();
    EXPECT_EQ(dock->widget()->objectName(), "QPerfCounterModule");
    const char* save = "Save the view for this profile which become the default one.";
    const char* color = "Click to change the color of the selected counter.";
    const char* scale = "Set a scale factor (> 0).";
    expectParts(*dock, {{"m_listPart", "QWidget", "", ""},
                        {"m_config", "QWidget", "", ""},
                        {"m_listConfigWidget", "QWidget", "", ""},
                        {"m_listConfig", "QComboBox", "", "Profile"},
                        {"m_openConfig", "QWidget", "", ""},
                        {"m_openConfigButton", "QPushButton", "", "Open the Profile Manager"},
                        {"m_saveView", "QPushButton", "", save},
                        {"m_preSelectedListView", "SoPerfCounterPreSelectedList", "", ""},
                        {"m_propertiesWidget", "QWidget", "", ""},
                        {"m_propertiesGroupBox", "QGroupBox", "Properties", ""},
                        {"m_colorWidget", "QWidget", "", ""},
                        {"m_colorLabel", "QLabel", "Color : ", color},
                        {"m_colorButton", "QPushButton", "", color},
                        {"m_scaleWidget", "QWidget", "", ""},
                        {"m_labelScale", "QLabel", "Scale :  ", scale},
                        {"m_label1", "QLabel", "1 : ", ""},
                        {"m_scaleEdit", "QLineEdit", "", scale},
                        {"m_viewer", "SoPerfCounterViewer", "", ""}});
    const std::pair<const char*, int> spacings[] = {
        {"horizontalLayout", -2},  {"verticalLayout", 5},      {"verticalLayout_5", 5},
        {"horizontalLayout_4", 5}, {"horizontalLayout_2", 0},  {"horizontalLayout_5", -2},
        {"verticalLayout_3", -2},  {"horizontalLayout_6", -2}, {"horizontalLayout_7", 2}};
    for (const auto& [name, spacing] : spacings) {
        const auto* layout = dock->widget()->findChild<QBoxLayout*>(name);
        ASSERT_TRUE(layout) << name;
        EXPECT_TRUE(spacing == -2 || layout->spacing() == spacing) << name;
    }
    EXPECT_EQ(dock->m_listPart->layout()->contentsMargins(), QMargins());
    EXPECT_EQ(dock->m_propertiesGroupBox->layout()->contentsMargins(), QMargins(5, 5, 5, 5));
    EXPECT_EQ(dock->m_config->height(), 50);
    EXPECT_EQ(dock->m_propertiesWidget->height(), 75);
    EXPECT_EQ(dock->m_propertiesGroupBox->height(), 75);
    EXPECT_EQ(dock->m_colorButton->size(), QSize(15, 15));
    for (const QPushButton* button : {dock->m_openConfigButton, dock->m_saveView}) {
        EXPECT_TRUE(button->isFlat());
        EXPECT_EQ(button->maximumHeight(), 25);
    }
    EXPECT_FALSE(dock->m_openConfigButton->autoDefault());
    expectIcon(*dock->m_openConfigButton, "newdirectory-16.png");
    expectIcon(*dock->m_saveView, "filesave.png");
}

TEST_F(CounterForms, OfTheListToDragFrom)
{
    writeExample();
    open();
    const SoPerfCounterPreSelectedList& list = *dock->m_preSelectedListView;
    EXPECT_EQ(list.editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_TRUE(list.dragEnabled());
    EXPECT_EQ(list.dragDropMode(), QAbstractItemView::DragOnly);
    EXPECT_EQ(list.selectionMode(), QAbstractItemView::ExtendedSelection);
}

TEST_F(CounterForms, OfTheViewer)
{
    SoPerfCounterViewer viewer;
    const char* time = "Time shown (s)";
    const char* frequency = "Display frequency (pts/s)";
    expectParts(viewer, {{"m_toolBar", "QWidget", "", ""},
                         {"m_text", "QPushButton", "", "Texts view"},
                         {"m_graph", "QPushButton", "", "Graphs view"},
                         {"m_curve", "QPushButton", "", "Curves view"},
                         {"m_timeLabel", "QLabel", "T : ", time},
                         {"m_timeBox", "QComboBox", "", time},
                         {"m_freqLabel", "QLabel", " / F :", frequency},
                         {"m_freqBox", "QComboBox", "", frequency},
                         {"m_resetDisplay", "QPushButton", "", "Reset the display"},
                         {"m_stop", "QPushButton", "", "Play / stop the display"}});
    EXPECT_EQ(viewer.m_toolBar->layout()->objectName(), "horizontalLayout_3");
    EXPECT_EQ(itemsOf(*viewer.m_timeBox), (QStringList{"15", "30", "45", "60", "90", "120"}));
    EXPECT_EQ(itemsOf(*viewer.m_freqBox), (QStringList{"1", "2", "4", "8"}));
    EXPECT_EQ(columnsOf(*viewer.m_textView), (QStringList{"Name", "Value", "Scale"}));
    EXPECT_EQ(columnsOf(*viewer.m_legend), (QStringList{"Name", "Type", "Level", "Module", "Description"}));
    expectIcon(*viewer.m_text, "m_text.PNG");
    expectIcon(*viewer.m_graph, "m_graph.PNG");
    expectIcon(*viewer.m_curve, "m_curve.PNG");
    expectIcon(*viewer.m_stop, "player_pause.png");
}

TEST_F(CounterForms, OfTheManager)
{
    writeExample();
    open();
    SoPerfCounterProfileManager& manager = *openManager();
    expectParts(manager, {{"m_labelCounter", "QLabel", "Performance counters", ""},
                          {"m_createCounter", "QPushButton", "", "Create a new counter"},
                          {"m_deleteCounter", "QPushButton", "", "Reset the custom counters selected"},
                          {"m_labelProfile", "QLabel", "Profiles", ""},
                          {"m_downArrow", "QPushButton", "", "Add selected counters to the list"},
                          {"m_upArrow", "QPushButton", "", "Remove selected counters from the list"},
                          {"m_addProfile", "QPushButton", "", "Add a profile"},
                          {"m_deleteProfile", "QPushButton", "", "Delete the selected profile"},
                          {"m_resetProfile", "QPushButton", "", "Reset the selected profile"},
                          {"m_tabProfile", "QTabWidget", "", ""},
                          {"m_statusBar", "QStatusBar", "", ""},
                          {"m_buttonBox", "QDialogButtonBox", "", "Save the modifications."}});
    EXPECT_EQ(manager.m_menuCounter->title(), "&Counter");
    EXPECT_EQ(manager.m_menuProfile->title(), "&Profile");
    EXPECT_EQ(columnsOf(*manager.m_listCounter), CounterColumns);
    EXPECT_EQ(columnsOf(*static_cast<SoPerfCounterPage*>(manager.m_tabProfile->widget(0))->getTableProfile()),
              CounterColumns);
    EXPECT_EQ(manager.m_tabProfile->tabText(1), "second");
    EXPECT_EQ(manager.m_buttonBox->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    EXPECT_TRUE(manager.testAttribute(Qt::WA_DeleteOnClose));
    expectIcon(*manager.m_createCounter, "edit_add.png");
    expectIcon(*manager.m_deleteCounter, "edit_remove.png");
    expectIcon(*manager.m_downArrow, "down-32.png");
    expectIcon(*manager.m_upArrow, "up-32.png");
}

TEST_F(CounterForms, OfTheManagersActions)
{
    writeExample();
    open();
    const SoPerfCounterProfileManager& manager = *openManager();
    const struct {
        const QAction* action;
        const QMenu* menu;
        const char* text;
        const char* keys;
    } actions[] = {{manager.actionCreateCounter, manager.m_menuCounter, "&Create", "Ctrl+C"},
                   {manager.actionDeleteCounter, manager.m_menuCounter, "D&elete", "Ctrl+E"},
                   {manager.actionOpenProfile, manager.m_menuProfile, "&Open...", "Ctrl+O"},
                   {manager.actionSaveProfile, manager.m_menuProfile, "&Save As", "Ctrl+S"},
                   {manager.actionNewProfile, manager.m_menuProfile, "&New", "Ctrl+N"},
                   {manager.actionDeleteProfile, manager.m_menuProfile, "&Delete", "Ctrl+D"},
                   {manager.actionResetProfile, manager.m_menuProfile, "&Reset", "Ctrl+R"},
                   {manager.actionEditCounter, nullptr, "Edit", "Ctrl+M"}};
    for (const auto& each : actions) {
        EXPECT_EQ(each.action->text(), each.text);
        EXPECT_EQ(each.action->shortcut(), QKeySequence(each.keys)) << each.text;
        EXPECT_TRUE(!each.menu || each.menu->actions().contains(const_cast<QAction*>(each.action)))
            << each.text;
    }
    EXPECT_EQ(manager.actionNewProfile->statusTip(), "Create a new profile");
}

TEST_F(CounterForms, OfTheDialogThatCreatesACounter)
{
    SoPerfCounterCreateCounter dialog("testA", "testB");
    EXPECT_EQ(dialog.windowTitle(), "Create a new counter");
    QStringList texts;
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_EQ(texts, (QStringList{"Name :", "Type :", "First counter :", "testA", "Second counter :", "testB",
                                  "Operation :", "Description \n(optional) :", "Level (optional) :",
                                  "Module (optional) :"}));
    EXPECT_EQ(dialog.m_accumRadio->text(), "Accumulation counter");
    EXPECT_EQ(dialog.m_statRadio->text(), "State counter");
    EXPECT_EQ(itemsOf(*dialog.m_operation), (QStringList{"+", "-", "*", "/"}));
    EXPECT_EQ(itemsOf(*dialog.m_level), (QStringList{"Low", "Medium", "High"}));
}

TEST_F(CounterForms, OfTheDialogThatCreatesAProfile)
{
    QPointer<SoPerfCounterCreateProfile> dialog = new SoPerfCounterCreateProfile;
    EXPECT_EQ(dialog->findChild<QLabel*>()->text(), "Name :");
    QSignalSpy created(dialog, &SoPerfCounterCreateProfile::createdNewProfile);
    dialog->show();
    dialog->m_name->setText("mine");
    QTest::mouseClick(dialog->m_buttonBox->button(QDialogButtonBox::Ok), Qt::LeftButton);
    ASSERT_EQ(created.size(), 1);
    EXPECT_EQ(created.first().first().toString(), "mine");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(dialog);
}

TEST_F(CounterForms, IconsAreThereInTwoDensities)
{
    for (const char* name :
         {"down-32.png", "edit.png", "edit_add.png", "edit_remove.png", "fileopen.png", "filesave.png",
          "m_curve.PNG", "m_graph.PNG", "m_text.PNG", "newdirectory-16.png", "player_pause.png",
          "player_play.png", "reload_translations.png", "up-32.png"}) {
        const QString file = QStringLiteral(":/PerfCounter_icons/Icons/") + QLatin1String(name);
        const QImage plain(file);
        QString dense = file;
        const QImage twice(dense.insert(dense.lastIndexOf('.'), QStringLiteral("@2x")));
        ASSERT_FALSE(plain.isNull()) << name;
        EXPECT_EQ(twice.size(), 2 * plain.size()) << name;
    }
}
