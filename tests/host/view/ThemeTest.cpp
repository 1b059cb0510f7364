// SPDX-License-Identifier: MIT
// The look of the host's window, beside windows of an application that it is embedded in.
#include "theme/Theme.h"
#include "app/HostSession.h"
#include "window/MainWindow.h"

#include <xsg/core/SoPreferences.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

using namespace scopix;

namespace
{

const char* styleOf(const QWidget& widget)
{
    return widget.style()->metaObject()->className();
}

// As on most desktops.
class StyleWithPictures : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

class ThemeOfAWindow : public testing::Test
{
protected:
    ThemeOfAWindow()
    {
        QApplication::setStyle(QStringLiteral("Windows"));
        m_window.setCentralWidget(new QPushButton);
    }
    ~ThemeOfAWindow() override { QApplication::setStyle(QStringLiteral("Fusion")); }

    template <class Widget>
    void expectLook(const Widget& widget, Theme theme)
    {
        EXPECT_STREQ(styleOf(widget), "QFusionStyle") << widget.metaObject()->className();
        EXPECT_EQ(widget.palette().color(QPalette::Window), themePalette(theme).color(QPalette::Window))
            << widget.metaObject()->className();
        EXPECT_EQ(widget.palette().color(QPalette::ToolTipBase),
                  themePalette(theme).color(QPalette::ToolTipBase));
        EXPECT_EQ(widget.font().family(), m_window.font().family());
        EXPECT_EQ(widget.font().pointSize(), m_window.font().pointSize());
    }

    QMainWindow m_window;
};

TEST_F(ThemeOfAWindow, TakesPicturesFromStandardButtonsAlone)
{
    QApplication::setStyle(new StyleWithPictures);
    applyTheme(m_window, Theme::Dark);
    QDialog dialog(&m_window);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Close, &dialog);
    auto* own = new QPushButton(dialog.style()->standardIcon(QStyle::SP_DialogOkButton), "Paint");
    box->addButton(own, QDialogButtonBox::ActionRole);
    const QDialogButtonBox elsewhere(QDialogButtonBox::Close);
    EXPECT_FALSE(elsewhere.button(QDialogButtonBox::Close)->icon().isNull()) << "this style has them";
    dialog.show();
    for (const auto which : {QDialogButtonBox::Ok, QDialogButtonBox::Close})
        EXPECT_TRUE(box->button(which)->icon().isNull());
    EXPECT_FALSE(own->icon().isNull());
}

TEST_F(ThemeOfAWindow, ReachesWhatBelongsToItNowAndLater)
{
    QDialog early(&m_window);
    applyTheme(m_window, Theme::Dark);
    QDialog late(&m_window);
    auto* inside = new QLineEdit(&late);
    QMenu* menu = m_window.menuBar()->addMenu("menu")->addMenu("submenu");
    for (QWidget* widget : {static_cast<QWidget*>(&m_window), static_cast<QWidget*>(&early),
                            static_cast<QWidget*>(&late), static_cast<QWidget*>(menu)})
        widget->show();
    for (const Theme theme : {Theme::Dark, Theme::Light, Theme::Dark}) {
        applyTheme(m_window, theme);
        expectLook(*m_window.centralWidget(), theme);
        expectLook(early, theme);
        expectLook(late, theme);
        expectLook(*inside, theme);
        expectLook(*menu, theme);
    }
}

TEST_F(ThemeOfAWindow, ReachesADockThatFloatsAndWhatWasShownElsewhereBefore)
{
    applyTheme(m_window, Theme::Dark);
    auto* content = new QWidget;
    auto* line = new QLineEdit(content);
    content->ensurePolished();
    line->ensurePolished();
    auto* dock = new QDockWidget(&m_window);
    dock->setWidget(content);
    m_window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    m_window.show();
    dock->setFloating(true);
    expectLook(*dock, Theme::Dark);
    expectLook(*line, Theme::Dark);
}

TEST_F(ThemeOfAWindow, ReachesToolTips)
{
    applyTheme(m_window, Theme::Dark);
    m_window.show();
    QToolTip::showText(m_window.mapToGlobal({5, 5}), "tip", m_window.centralWidget());
    const auto tips = QApplication::topLevelWidgets();
    const auto isTip = [](const QWidget* widget) { return widget->windowType() == Qt::ToolTip; };
    const auto tip = std::find_if(tips.begin(), tips.end(), isTip);
    ASSERT_NE(tip, tips.end());
    EXPECT_EQ((*tip)->palette().color(QPalette::ToolTipBase),
              themePalette(Theme::Dark).color(QPalette::ToolTipBase));
    QToolTip::hideText();
}

TEST_F(ThemeOfAWindow, LeavesTheApplicationAndItsOtherWindowsAlone)
{
    const QPalette palette = QApplication::palette();
    const QFont font = QApplication::font();
    QWidget other;
    other.show();
    applyTheme(m_window, Theme::Dark);
    QDialog later;
    m_window.show();
    later.show();
    EXPECT_EQ(QApplication::palette(), palette);
    for (const QWidget* widget : {static_cast<QWidget*>(&other), static_cast<QWidget*>(&later)}) {
        EXPECT_STREQ(styleOf(*widget), "QWindowsStyle");
        EXPECT_EQ(widget->palette().color(QPalette::Window), palette.color(QPalette::Window));
        EXPECT_EQ(widget->font(), font);
    }
}

TEST_F(ThemeOfAWindow, AnEmbeddedHostChangesNothingOfTheApplication)
{
    const QTemporaryDir home;
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(name, home.path().toLocal8Bit());
    const auto stateOfApplication = [] {
        return std::make_tuple(QApplication::palette(), QApplication::font(),
                               std::string(QApplication::style()->metaObject()->className()),
                               QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps), qApp->styleSheet(),
                               QApplication::applicationName(), QLocale(),
                               QProcessEnvironment::systemEnvironment().toStringList());
    };
    const auto before = stateOfApplication();
    {
        HostSession host([](HostServices& services, UserNotifier& notifier) {
            return std::make_unique<MainWindow>(services, notifier);
        });
        CommandLine line;
        line.counters = true;
        host.start(line);
        EXPECT_EQ(stateOfApplication(), before);
        EXPECT_STREQ(styleOf(host.window()), "QFusionStyle");
    }
    EXPECT_EQ(stateOfApplication(), before);
    SoPreferences::setValue("XSG_PERFCOUNTER_ENABLE", SbString());
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qunsetenv(name);
}

} // namespace
