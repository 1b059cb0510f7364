// SPDX-License-Identifier: MIT
// The inspector inside of an application that has its own look and its own class MainWindow.
#include "Look.h"
#include "MainWindow.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QProcessEnvironment>
#include <QSignalSpy>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace
{

constexpr int Patience = 60000; // milliseconds, of which a good run takes few

std::string text(const QString& string)
{
    return string.toStdString();
}

QStringList attributes()
{
    QStringList set;
    for (int each = 0; each < Qt::AA_AttributeCount; ++each) {
        if (QCoreApplication::testAttribute(static_cast<Qt::ApplicationAttribute>(each)))
            set += QString::number(each);
    }
    return set;
}

/// What an inspector must leave as it is, taken before the first one was made.
struct ApplicationState {
    QString style = QApplication::style()->objectName();
    QPalette palette = QApplication::palette();
    QString font = QApplication::font().toString();
    QString styleSheet = qApp->styleSheet();
    QString attributes = ::attributes().join(' ');
    QString environment = QProcessEnvironment::systemEnvironment().toStringList().join('\n');
    QString name = QApplication::applicationName() + ' ' + QApplication::applicationDisplayName() + ' ' +
                   QApplication::applicationVersion();
    bool quitsOnLastWindow = QApplication::quitOnLastWindowClosed();
};

const ApplicationState* before = nullptr;

QMainWindow* inspectorWindow()
{
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (qstrcmp(each->metaObject()->className(), "scopix::MainWindow") == 0)
            return qobject_cast<QMainWindow*>(each);
    }
    return nullptr;
}

class Embedded : public ::testing::Test
{
protected:
    Embedded()
    {
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window, Patience));
    }
    QMainWindow* openByKey()
    {
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window, Patience));
        QTest::keyClick(&m_window, Qt::Key_F12);
        QMainWindow* inspector = inspectorWindow();
        if (!inspector)
            return nullptr;
        EXPECT_TRUE(QTest::qWaitForWindowExposed(inspector, Patience));
        QCoreApplication::processEvents();
        return inspector;
    }

    MainWindow m_window;
};

TEST_F(Embedded, OpensOnAKeyAndShowsTheApplicationsScene)
{
    EXPECT_FALSE(inspectorWindow());
    QMainWindow* inspector = openByKey();
    ASSERT_TRUE(inspector);
    EXPECT_TRUE(inspector->isVisible());
    EXPECT_TRUE(inspector->windowTitle().startsWith("Turntable")) << text(inspector->windowTitle());
    const auto* tree = inspector->findChild<QTreeView*>();
    ASSERT_TRUE(tree && tree->model());
    EXPECT_EQ(text(tree->model()->index(0, 0).data().toString()), "Turntable");
}

TEST_F(Embedded, KeepsTheApplicationsLook)
{
    const QStyle* style = QApplication::style();
    const QStyle* windowStyle = m_window.style();
    const QPalette windowPalette = m_window.palette();
    const QFont windowFont = m_window.font();
    ASSERT_TRUE(openByKey());
    const ApplicationState now;
    EXPECT_EQ(text(now.style), text(before->style));
    EXPECT_TRUE(now.palette == before->palette);
    EXPECT_EQ(text(now.font), text(before->font));
    EXPECT_EQ(text(now.styleSheet), text(before->styleSheet));
    EXPECT_EQ(QApplication::style(), style);
    EXPECT_EQ(m_window.style(), windowStyle);
    EXPECT_TRUE(m_window.palette() == windowPalette);
    EXPECT_TRUE(m_window.font() == windowFont);
}

TEST_F(Embedded, KeepsEnvironmentAndAttributes)
{
    ASSERT_TRUE(openByKey());
    const ApplicationState now;
    EXPECT_EQ(text(now.environment), text(before->environment));
    EXPECT_EQ(text(now.attributes), text(before->attributes));
    EXPECT_EQ(text(now.name), text(before->name));
    EXPECT_EQ(now.quitsOnLastWindow, before->quitsOnLastWindow);
}

TEST_F(Embedded, ItsMainWindowIsItsOwn)
{
    QMainWindow* inspector = openByKey();
    ASSERT_TRUE(inspector);
    EXPECT_STREQ(m_window.metaObject()->className(), "MainWindow");
    EXPECT_FALSE(qobject_cast<MainWindow*>(inspector));
    MainWindow second;
    EXPECT_EQ(text(second.windowTitle()), "Turntable");
    EXPECT_FALSE(second.findChild<QTreeView*>());
}

TEST_F(Embedded, ClosingTheInspectorLeavesTheApplicationAndItsScene)
{
    QSignalSpy lastClosed(qApp, &QApplication::lastWindowClosed);
    QPointer<QMainWindow> inspector = openByKey();
    ASSERT_TRUE(inspector);
    m_window.hide(); // so that the inspector's is the only window to be seen
    EXPECT_TRUE(inspector->close());
    QCoreApplication::processEvents();
    EXPECT_TRUE(lastClosed.isEmpty());
    EXPECT_FALSE(inspector->isVisible());
    m_window.show();
    const Scene& scene = m_window.getScene();
    EXPECT_EQ(scene.root->getNumChildren(), 5);
    EXPECT_EQ(text(scene.root->getName().getString()), "Turntable");
    EXPECT_EQ(openByKey(), inspector);
    EXPECT_TRUE(inspector->isVisible());
}

TEST_F(Embedded, LeavesAnimationToTheApplication)
{
    ASSERT_TRUE(openByKey());
    const auto turned = [this, from = m_window.getScene().plate->rotation.getValue()] {
        return !(m_window.getScene().plate->rotation.getValue() == from);
    };
    EXPECT_TRUE(QTest::qWaitFor(turned, Patience));
    EXPECT_FALSE(inspectorWindow()->isWindowModified());
}

} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("turntable"));
    applyLook();
    const ApplicationState atStart;
    before = &atStart;
    return RUN_ALL_TESTS();
}
