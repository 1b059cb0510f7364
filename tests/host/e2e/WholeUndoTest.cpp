// SPDX-License-Identifier: MIT
// Undo through the real host and plug-in: everything that the user did, to the last bit and flag, and nothing
// else.
#include <support/Session.h>

#include "panels/FieldListModel.h"
#include "panels/FieldListView.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"

#include <support/PlainModel.h>
#include <support/SoFieldGallery.h>
#include <support/Waiting.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoTimeSource.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <QColorDialog>
#include <QFile>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableWidget>
#include <QTimer>

using namespace scopix;

namespace
{

constexpr char SceneText[] = R"(#Xsg V1.0 utf8
Separator {
    Material "Paint" {}
    Cube {}
}
)";

class WholeUndo : public testing::Test
{
protected:
    MainWindow& window() { return static_cast<MainWindow&>(session.host.window()); }

    void open(const QString& path)
    {
        QSignalSpy done(&window(), &HostWindow::openFinished);
        window().openFile(path);
        ASSERT_TRUE(waitFor([&] { return !done.isEmpty(); }));
        ASSERT_TRUE(done.value(0).value(0).toBool());
        Session::settle();
    }
    QString write()
    {
        QFile file(folder.filePath("scene.xsg"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(SceneText) > 0);
        return file.fileName();
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    template <class Node>
    Node* first()
    {
        SoSearchAction search;
        search.setType(Node::getClassTypeId());
        search.apply(window().getScene());
        return search.getPaths().empty() ? nullptr : static_cast<Node*>(search.getPaths().front().getTail());
    }
    SoMaterial* material() { return first<SoMaterial>(); }
    // Whether the dot of a changed value is in the field's row.
    bool hasDot(const SoField& field)
    {
        Session::settle();
        const FieldListModel& model = window().getFields().getModel();
        const QModelIndex row = model.indexOf(&field);
        EXPECT_TRUE(row.isValid());
        return !row.data(FieldListModel::DefaultRole).toBool();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window(), key, modifiers);
        Session::settle();
    }
    void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
    QTableWidget* table() { return session.inEditor<QTableWidget>("m_table"); }
    void clickCell(int row, int column, bool twice = false)
    {
        const QModelIndex index = table()->model()->index(row, column);
        table()->scrollTo(index);
        const QPoint at = table()->visualRect(index).center();
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, at);
        if (twice)
            QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, at);
        Session::settle();
    }
    void typeIntoCell(int row, const QString& text)
    {
        clickCell(row, 0, true);
        QWidget* input = QApplication::focusWidget();
        ASSERT_TRUE(qobject_cast<QLineEdit*>(input));
        QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(input, text);
        QTest::keyClick(input, Qt::Key_Return);
        Session::settle();
    }
    static void answerColorDialog(const QColor& color, bool accepts)
    {
        QTimer::singleShot(0, qApp, [=] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            dialog->setCurrentColor(color);
            accepts ? dialog->accept() : dialog->reject();
        });
    }

    QTemporaryDir folder;
    Session session{[](HostServices& services, UserNotifier& notifier) {
        return std::make_unique<MainWindow>(services, notifier);
    }};
};

} // namespace

TEST_F(WholeUndo, AColorOfAModelComesBackFromTheDialog)
{
    open(writePlainLighthouse(folder.path()));
    SoMFColor& field = material()->diffuseColor;
    const SbVec3f before = field[0];
    const bool wasDefault = field.isDefault();
    session.select(&field);
    answerColorDialog(QColor(51, 102, 153), true);
    clickCell(0, 0);
    const SbVec3f chosen = field[0];
    EXPECT_NE(chosen, before);
    EXPECT_TRUE(window().isWindowModified());
    ASSERT_EQ(session.stack().count(), 1);

    undo();
    EXPECT_EQ(field[0], before);
    EXPECT_EQ(field.isDefault(), wasDefault);
    EXPECT_FALSE(window().isWindowModified());
    session.stack().redo();
    EXPECT_EQ(field[0], chosen);
    EXPECT_TRUE(window().isWindowModified());
}

TEST_F(WholeUndo, ACancelledColorDialogIsNoStepAndKeepsWhatCanBeRedone)
{
    open(write());
    SoMFColor& field = material()->diffuseColor;
    session.select(&field);
    answerColorDialog(Qt::red, true);
    clickCell(0, 0);
    undo();
    ASSERT_TRUE(session.stack().canRedo());
    answerColorDialog(Qt::blue, false);
    clickCell(0, 0);
    EXPECT_TRUE(session.stack().canRedo());
    EXPECT_EQ(session.stack().count(), 1);
    EXPECT_FALSE(window().isWindowModified());
    session.stack().redo();
    EXPECT_EQ(field[0], SbVec3f(1, 0, 0));
}

TEST_F(WholeUndo, UndoTakesTheDotAndTheFieldsLineInTheFileAway)
{
    const QString path = write();
    open(path);
    SoSFFloat& field = material()->transparency;
    session.select(&field);
    ASSERT_FALSE(hasDot(field));
    for (const char* text : {"0.5", "0"}) { // also where only the flag changes
        session.typeAnew(QLatin1String(text));
        press(Qt::Key_Return);
        EXPECT_TRUE(hasDot(field)) << text;
        undo();
        EXPECT_FALSE(hasDot(field)) << text;
        EXPECT_FALSE(window().isWindowModified());
        ASSERT_TRUE(window().getFiles().saveTo(path));
        EXPECT_EQ(contentOf(path), SceneText) << text;
        session.stack().redo();
        EXPECT_TRUE(hasDot(field)) << text;
        undo();
    }
}

TEST_F(WholeUndo, SetToDefaultAndIgnoreComeBackWithTheirFlags)
{
    open(write());
    SoSFFloat& field = material()->shininess;
    session.select(&field);
    field.setValue(0.75F);
    Session::settle();
    session.click(session.inEditor<QPushButton>("m_defaultButton"));
    EXPECT_EQ(field.getValue(), 0.2F);
    session.click(session.inEditor<QPushButton>("m_ignoreButton"));
    EXPECT_TRUE(field.isIgnored());
    ASSERT_EQ(session.stack().count(), 2);
    undo();
    EXPECT_FALSE(field.isIgnored());
    undo();
    EXPECT_EQ(field.getValue(), 0.75F);
    EXPECT_FALSE(field.isDefault());
    field.setDefault(true);
    session.click(session.inEditor<QPushButton>("m_ignoreButton"));
    undo();
    EXPECT_TRUE(field.isDefault());
}

TEST_F(WholeUndo, StepsAreNamedByOldAndNewValue)
{
    open(write());
    session.select(&material()->transparency);
    session.typeAnew("0.38");
    press(Qt::Key_Return);
    EXPECT_EQ(session.stack().undoText().toStdString(), "Paint.transparency: 0 → 0.38");
    session.click(session.inEditor<QPushButton>("m_ignoreButton"));
    EXPECT_EQ(session.stack().undoText().toStdString(), "Paint.transparency: ignored");
    session.select(&material()->diffuseColor);
    session.click(session.inEditor<QPushButton>("m_addButton"));
    EXPECT_EQ(session.stack().undoText().toStdString(), "Paint.diffuseColor: 1 → 2 values");
    answerColorDialog(Qt::red, true);
    clickCell(1, 0);
    EXPECT_EQ(session.stack().undoText().toStdString(), "Paint.diffuseColor[1]: 0.8 0.8 0.8 → 1 0 0");
}

// --- What others write

TEST_F(WholeUndo, AnAnimatedFieldThatIsSelectedIsNoEdit)
{
    open(QStringLiteral(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg"));
    ASSERT_TRUE(window().selectField("carousel", "time"));
    SoField* field = session.host.services().selectedField();
    ASSERT_TRUE(session.editorShown());
    const auto changes = field->getChangeCount();
    window().getView().setAnimated(true);
    ASSERT_TRUE(waitFor([&] { return field->getChangeCount() > changes + 5; }));
    // The held button of the view changes nothing about that.
    QTest::mousePress(&window().getView(), Qt::LeftButton, {}, {100, 100});
    const auto held = field->getChangeCount();
    ASSERT_TRUE(waitFor([&] { return field->getChangeCount() > held + 5; }));
    QTest::mouseRelease(&window().getView(), Qt::LeftButton, {}, {100, 100});
    Session::settle();
    EXPECT_EQ(session.stack().count(), 0);
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_TRUE(window().getFiles().confirmClose());
}

TEST_F(WholeUndo, WhatTheApplicationWritesDuringAGestureIsNoEdit)
{
    open(write());
    SoSFFloat& field = material()->transparency;
    session.select(&field);
    QTimer::singleShot(0, qApp, [&] { field.setValue(0.125F); });
    QMetaObject::invokeMethod(
        qApp, [&] { field.setValue(0.25F); }, Qt::QueuedConnection);
    const QPoint at = session.handle();
    QTest::mousePress(session.inEditor<QSlider>(), Qt::LeftButton, {}, at);
    Session::settle();
    field.setValue(0.5F); // by whoever runs the event loop
    QTest::mouseRelease(session.inEditor<QSlider>(), Qt::LeftButton, {}, at);
    Session::settle();
    EXPECT_EQ(field.getValue(), 0.5F);
    EXPECT_EQ(session.stack().count(), 0);
    EXPECT_FALSE(window().isWindowModified());
}

TEST_F(WholeUndo, TheApplicationsValueIsWhatAnEditComesBackTo)
{
    open(write());
    SoSFFloat& field = material()->transparency;
    session.select(&field);
    field.setValue(0.5F);
    Session::settle();
    session.typeAnew("0.25");
    press(Qt::Key_Return);
    field.setValue(0.75F);
    Session::settle();
    undo();
    EXPECT_EQ(field.getValue(), 0.5F);
    session.stack().redo();
    EXPECT_EQ(field.getValue(), 0.25F);
}

TEST_F(WholeUndo, AConnectedValueIsNoEdit)
{
    open(write());
    const SoRef<SoMaterial> master(new SoMaterial);
    SoSFFloat& field = material()->transparency;
    ASSERT_TRUE(field.connectFrom(&master->transparency));
    session.select(&field);
    const QPoint at = session.handle();
    QTest::mousePress(session.inEditor<QSlider>(), Qt::LeftButton, {}, at);
    master->transparency.setValue(0.5F);
    Session::settle();
    QTest::mouseRelease(session.inEditor<QSlider>(), Qt::LeftButton, {}, at);
    Session::settle();
    EXPECT_EQ(field.getValue(), 0.5F);
    EXPECT_EQ(session.stack().count(), 0);
    EXPECT_FALSE(window().isWindowModified());
}

// --- Lists

TEST_F(WholeUndo, CellsOfALongListCostWhatTheyChange)
{
    open(write());
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    constexpr int Count = 1'000'000;
    constexpr int Edits = 50;
    gallery->mfFloat.setValues(std::vector<float>(Count, 0.5F));
    session.select(&gallery->mfFloat);
    std::vector<float> before(gallery->mfFloat.getValues(), gallery->mfFloat.getValues() + Count);
    for (int i = 0; i < Edits; ++i) {
        clickCell(i % 5, 0, true);
        QWidget* input = QApplication::focusWidget();
        QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(input, QString::number(i + 1));
        QTest::keyClick(input, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    session.selectNothing();
    EXPECT_EQ(session.stack().count(), Edits);
    EXPECT_LT(session.host.services().history().memoryUsed(), Edits * (std::size_t(4) << 20) / 1000);
    while (session.stack().canUndo())
        session.stack().undo();
    EXPECT_TRUE(std::equal(before.begin(), before.end(), gallery->mfFloat.getValues()));
}

TEST_F(WholeUndo, NodesThatOnlyAListHoldsComeBack)
{
    open(write());
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    SoMFNode& field = gallery->mfNode;
    field.deleteValues(0);
    for (int i = 0; i < 3; ++i)
        field.set1Value(i, SoRef<SoNode>(new SoSphere));
    const std::vector<SoNode*> nodes{field[0].get(), field[1].get(), field[2].get()};
    const auto now = [&] {
        std::vector<SoNode*> all;
        for (int i = 0; i < field.getNum(); ++i)
            all.push_back(field[i].get());
        return all;
    };
    session.select(&field);
    const auto goToTheSecond = [this] {
        session.inEditor<QSpinBox>("m_accessBox")->setValue(2);
        Session::settle();
    };
    goToTheSecond();
    for (const char* button : {"m_upButton", "m_downButton", "m_deleteButton", "m_defaultButton"}) {
        session.click(session.inEditor<QPushButton>(button));
        ASSERT_EQ(session.stack().count(), 1) << button;
        const auto after = now();
        EXPECT_NE(after, nodes) << button;
        session.stack().undo();
        EXPECT_EQ(now(), nodes) << button;
        session.stack().redo();
        EXPECT_EQ(now(), after) << button;
        session.stack().undo();
        EXPECT_EQ(now(), nodes) << button;
        Session::settle();
        goToTheSecond();
    }
    EXPECT_EQ(nodes[1]->getRefCount(), 2) << "the list's and the step's that can be redone";
}
