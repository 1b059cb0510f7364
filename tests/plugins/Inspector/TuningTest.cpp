// SPDX-License-Identifier: MIT
// Open, look, tune, compare, save, as docs/tuning.md tells it, by a user's own events; SCOPIX_PICTURES=FOLDER
// keeps the pictures of that page.
#include "InspectorSession.h"

#include "viewport/SceneView.h"
#include "window/MainWindow.h"
#include "window/ViewPoints.h"

#include <support/PlainModel.h>
#include <support/Waiting.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/nodes/properties/SoPoints.h>

#include <QAbstractScrollArea>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QPainter>
#include <QStatusBar>
#include <QToolButton>

namespace
{

class Tuning : public ::testing::Test
{
protected:
    Tuning()
        : session([](HostServices& services,
                     UserNotifier& notifier) { return std::make_unique<MainWindow>(services, notifier); },
                  340)
    {
        applyTheme(window(), Theme::Light);
        session.dock("Console")->close();
        window().resize(1280, 800);
        session.settle();
    }
    ~Tuning() override { session.selectNothing(); }

    MainWindow& window() { return static_cast<MainWindow&>(session.host.window()); }
    SceneView& view() { return window().getView(); }
    // Nobody else does when a dialog has closed.
    void activate()
    {
        window().activateWindow();
        EXPECT_TRUE(waitForActive(&window()));
    }
    void press(int key, Qt::KeyboardModifiers modifiers)
    {
        activate();
        QTest::keyClick(&window(), Qt::Key(key), modifiers);
        session.settle();
    }
    // Types the path into the file dialog that comes next.
    static void answerWith(const QString& path)
    {
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, [timer, path] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            auto* name = dialog ? dialog->findChild<QLineEdit*>("fileNameEdit") : nullptr;
            if (!name)
                return;
            timer->deleteLater();
            name->setText(path); // typed, its completion would have other ideas
            QTest::keyClick(name, Qt::Key_Return);
        });
        timer->start(1);
    }
    void open(const QString& path)
    {
        QSignalSpy opened(&window(), &HostWindow::openFinished);
        answerWith(path);
        press(Qt::Key_O, Qt::ControlModifier);
        ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
        ASSERT_TRUE(opened.value(0).value(0).toBool());
        activate();
        session.settle();
    }
    // Clicks what is seen of the part of this name.
    void clickPart(const char* name)
    {
        SoSearchAction search;
        search.setName(name);
        search.apply(window().getScene());
        ASSERT_FALSE(search.getPaths().empty());
        const SoNode* part = search.getPaths().front().getTail();
        constexpr int Step = 20; // pixels; no part of the scene is smaller
        for (int y = view().height() - Step; y > 0; y -= Step) {
            for (int x = Step; x < view().width(); x += Step) {
                const auto hit = view().pick({x, y});
                if (!hit || !hit->path.contains(part))
                    continue;
                QTest::mouseClick(&view(), Qt::LeftButton, {}, {x, y});
                return session.settle();
            }
        }
        FAIL() << name << " is not seen";
    }
    void clickNearby(const char* text)
    {
        for (auto* button : session.panel()->findChild<QWidget*>("nearby")->findChildren<QToolButton*>()) {
            if (button->isVisible() && button->text().contains(QLatin1String(text)))
                return session.click(button);
        }
        FAIL() << text;
    }
    static void dragFast(QWidget* input)
    {
        QPoint at = input->rect().center();
        QTest::mousePress(input, Qt::LeftButton, {}, at);
        for (int i = 0; i < 6; ++i) {
            at.rx() += 12;
            InspectorSession::move(input, at, {});
        }
        QTest::mouseRelease(input, Qt::LeftButton, {}, at);
        InspectorSession::settle();
    }
    SoMaterial* selectedMaterial()
    {
        return dynamic_cast<SoMaterial*>(session.host.services().selectedNode());
    }
    // Without what the status bar says of this computer's folders; with the menu that is open.
    void keep(const char* name)
    {
        session.settle();
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        if (folder.isEmpty())
            return;
        QDir().mkpath(folder);
        window().statusBar()->clearMessage();
        QImage picture = window().grab().toImage().convertToFormat(QImage::Format_RGB32);
        if (QWidget* menu = QApplication::activePopupWidget())
            QPainter(&picture).drawPixmap(window().mapFromGlobal(menu->pos()), menu->grab());
        EXPECT_TRUE(picture.save(folder + '/' + QLatin1String(name) + ".png", nullptr, 0));
    }

    QTemporaryDir folder;
    InspectorSession session;
};

} // namespace

TEST_F(Tuning, FromTheFileToTheFile)
{
    open(writePlainLighthouse(folder.path()));
    EXPECT_TRUE(window().windowTitle().contains("lighthouse"));
    keep("1-open");

    clickPart("Sea");
    ASSERT_TRUE(session.panel());
    clickNearby("Material");
    const SoRef<SoMaterial> water(selectedMaterial());
    ASSERT_TRUE(water);
    ASSERT_TRUE(session.number("transparency"));
    keep("2-look");

    const QImage before = view().grab().toImage();
    const float transparency = water->transparency.getValue();
    dragFast(session.number("transparency"));
    EXPECT_GT(water->transparency.getValue(), transparency);
    EXPECT_NE(view().grab().toImage(), before) << "the picture follows";
    EXPECT_EQ(session.stack().count(), 1);
    EXPECT_TRUE(window().isWindowModified());
    keep("3-tune");

    session.click(session.panel()->findChild<QToolButton*>("pinButton"));
    clickPart("Meadow");
    ASSERT_TRUE(session.panel());
    clickNearby("Material");
    ASSERT_NE(selectedMaterial(), water.get());
    auto* compare = window().findChild<QToolButton*>("compare");
    ASSERT_TRUE(compare);
    session.click(compare);
    EXPECT_TRUE(compare->isChecked());
    EXPECT_EQ(session.stack().count(), 1) << "comparing changes nothing";
    keep("4-compare");

    const QString file = folder.filePath("lighthouse.xsg");
    press(Qt::Key_F, Qt::AltModifier);
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu);
    keep("5-save");
    QTest::keyClick(menu, Qt::Key_S);
    EXPECT_TRUE(waitFor([&] { return !window().isWindowModified(); }))
        << window().statusBar()->currentMessage().toStdString();
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_TRUE(saved.readAll().contains("transparency: " +
                                         QByteArray::number(double(water->transparency.getValue()), 'g', 3)));
}

TEST_F(Tuning, AListBelowTheViewWithItsVertices)
{
    open(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/lighthouse.glb"));
    clickPart("Meadow");
    clickNearby("Points");
    auto* points = dynamic_cast<SoPoints*>(session.host.services().selectedNode());
    ASSERT_TRUE(points);
    session.select(&points->points);
    session.inEditor<QAbstractScrollArea>("listTable")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_T, Qt::ControlModifier);
    session.settle();
    QDockWidget* wide = session.dock("Table");
    ASSERT_TRUE(wide && wide->isVisible());
    window().resizeDocks({wide}, {300}, Qt::Vertical);
    session.settle();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down, Qt::ControlModifier);
    for (int i = 0; i < 60; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ShiftModifier);
    session.settle();
    EXPECT_GT(window().getViewPoints().getMarks().count(), 60U);
    keep("vertices");
    wide->close();
}
