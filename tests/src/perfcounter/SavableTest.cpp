// SPDX-License-Identifier: MIT
// What the dialogs take is what a file gives back; the rest is refused in a sentence where it is typed.
#include "CounterProfileFile.h"
#include "ManagerFixture.h"
#include "ProfileText.h"

#include <QBuffer>
#include <QClipboard>
#include <QDomDocument>

namespace
{

// Every hundred texts name a profile together, and each a counter in it.
QList<SoPerfCounterProfile*> profilesOf(const QStringList& texts)
{
    QList<SoPerfCounterProfile*> profiles;
    for (int i = 0; i < texts.size(); i += 100) {
        const QStringList some = texts.mid(i, 100);
        profiles.append(new SoPerfCounterProfile(some.join('x')));
        *profiles.last()->getList() = some;
    }
    return profiles;
}

QStringList textsOf(const QList<SoPerfCounterProfile*>& profiles)
{
    QStringList texts;
    for (const SoPerfCounterProfile* profile : profiles)
        texts += QStringList{profile->getName()} + *profile->getList();
    qDeleteAll(profiles);
    return texts;
}

// What a file gives back that was written with these texts.
QStringList readBack(const QStringList& texts)
{
    QDomDocument document;
    QBuffer file;
    file.open(QIODevice::ReadWrite);
    counterProfileFile::initDocument(&file, document);
    const QList<SoPerfCounterProfile*> profiles = profilesOf(texts);
    counterProfileFile::writeProfiles(document, profiles);
    qDeleteAll(profiles);
    QBuffer written;
    written.open(QIODevice::ReadWrite);
    counterProfileFile::writeDocument(&written, document);
    written.seek(0);
    QDomDocument again;
    QString problem;
    if (!counterProfileFile::parse(&written, again, problem))
        return {problem};
    return textsOf(counterProfileFile::readProfiles(again));
}

const QString Lone(QChar(0xD800));
const QString NoCharacter(QChar(0xFFFE));

} // namespace

TEST(CounterTexts, EveryCharacterIsReadBackOrRefused)
{
    QStringList taken;
    QStringList refused;
    for (uint code = 0; code <= 0xFFFF; ++code) {
        for (const QString& text : {QString(QChar(code)), "a" + QString(QChar(code)) + "b"}) {
            const bool isTaken = profileText::listedNameRefusal("It", text).isEmpty();
            (isTaken ? taken : refused).append(text);
        }
    }
    taken.append(QString::fromUcs4(U"\U0001F600"));
    EXPECT_EQ(readBack(taken), textsOf(profilesOf(taken)));
    ASSERT_GT(refused.size(), 2 * 2048);
    for (int i = 0; i < refused.size(); i += 1 + i / 100) // no more is refused than has to be
        EXPECT_NE(readBack({refused[i]}), textsOf(profilesOf({refused[i]}))) << i;
}

TEST(CounterTexts, ARefusalNamesTheCharacter)
{
    EXPECT_EQ(profileText::refusal("The name", "a\fb"),
              "The name contains the character U+000C, which cannot be saved. Please remove it.");
    EXPECT_EQ(profileText::unsavableCharacter("a\x01"), "U+0001");
    EXPECT_EQ(profileText::unsavableCharacter(Lone), "U+D800");
    EXPECT_EQ(profileText::unsavableCharacter("a" + QString(QChar(0xDC00)) + Lone), "U+DC00");
    EXPECT_EQ(profileText::unsavableCharacter(NoCharacter), "U+FFFE");
    EXPECT_EQ(profileText::unsavableCharacter(QString::fromUcs4(U"\U0001F600\n\t")), "");
}

using CounterSavable = CounterProfileManager;

namespace
{

void paste(QWidget* input, const QString& text)
{
    QApplication::clipboard()->setText(text);
    QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(input, Qt::Key_Delete);
    QTest::keyClick(input, Qt::Key_V, Qt::ControlModifier);
}

} // namespace

TEST_F(CounterSavable, ANameOfAProfile)
{
    openBoth();
    QTest::mouseClick(manager->m_addProfile, Qt::LeftButton);
    auto* dialog = manager->findChild<SoPerfCounterCreateProfile*>();
    ASSERT_TRUE(dialog);
    auto* ok = dialog->m_buttonBox->button(QDialogButtonBox::Ok);
    for (const auto& [text, code] : {std::pair{QString("a\fb"), "U+000C"},
                                     {QString("a\x01"), "U+0001"},
                                     {"a" + Lone, "U+D800"},
                                     {"a" + NoCharacter, "U+FFFE"}}) {
        paste(dialog->m_name, text);
        QTest::mouseClick(ok, Qt::LeftButton);
        const QStringList said = boxes.take();
        ASSERT_EQ(said.size(), 1) << code;
        EXPECT_TRUE(said[0].contains(QString("The name contains the character ") + code)) << code;
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(manager->m_tabProfile->count(), 2);
    }
    paste(dialog->m_name, QString::fromUtf8("größer µ Ω 😀 &<\"#"));
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(manager->m_tabProfile->count(), 3);
    press(QDialogButtonBox::Ok);
    open();
    EXPECT_EQ(profileNames(), (QStringList{"first", "second", QString::fromUtf8("größer µ Ω 😀 &<\"#")}));
    EXPECT_EQ(boxes.take(), QStringList());
}

TEST_F(CounterSavable, ANameAndADescriptionOfACustomCounter)
{
    openBoth();
    const QPointer<SoPerfCounterCreateCounter> dialog = createDialog({"testA", "testB"});
    ASSERT_TRUE(dialog);
    dialog->setAttribute(Qt::WA_DeleteOnClose, false); // it would take its inputs with it
    auto* ok = dialog->m_buttonBox->button(QDialogButtonBox::Ok);
    const auto refusalOf = [&](QWidget* input, const QString& text, const QString& good) {
        paste(input, text);
        QTest::mouseClick(ok, Qt::LeftButton);
        paste(input, good);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(SoPerfCounterManager::getInstance()->getCounter("fine"), nullptr);
        return boxes.take().join('|').section(": ", 1).toStdString();
    };
    dialog->m_name->setText("fine");
    const std::string which = ", which cannot be saved. Please remove it.";
    for (const auto& [text, code] : {std::pair{QString("a\fb"), "U+000C"}, {QString("a\x01"), "U+0001"}}) {
        EXPECT_EQ(refusalOf(dialog->m_name, text, "fine"),
                  std::string("The name contains the character ") + code + which);
        EXPECT_EQ(refusalOf(dialog->m_module, text, ""),
                  std::string("The module contains the character ") + code + which);
    }
    EXPECT_EQ(refusalOf(dialog->m_description, "a\x01", ""),
              "The description contains the character U+0001" + which);
    EXPECT_EQ(refusalOf(dialog->m_description, "a" + Lone, ""),
              "The description contains the character U+D800" + which);
    EXPECT_EQ(refusalOf(dialog->m_module, NoCharacter, ""),
              "The module contains the character U+FFFE" + which);
    for (const char* name : {"Ω", "a😀", "ł"})
        EXPECT_EQ(refusalOf(dialog->m_name, QString::fromUtf8(name), "fine"),
                  "The name contains characters beyond Latin-1, which names of counters cannot have. Please "
                  "rename it.");
    for (const char* name : {"##", "a##b", "a#"})
        EXPECT_EQ(
            refusalOf(dialog->m_name, name, "fine"),
            "The name contains \"##\" or ends with \"#\", which separates names while they are dragged. "
            "Please rename it.");
    EXPECT_EQ(refusalOf(dialog->m_name, "  ", "fine"),
              "The name consists of spaces only, which cannot be saved. Please rename it.");
    // Spaces say nothing about a counter, and would be lost.
    paste(dialog->m_description, " \n ");
    paste(dialog->m_module, "  ");
    paste(dialog->m_name, QString::fromLatin1("\xb5 #1"));
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(boxes.take(), QStringList());
    const SoPerfCounter* made = SoPerfCounterManager::getInstance()->getCounter("\xb5 #1");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->getDescription(), SbString(""));
    EXPECT_EQ(made->getModule(), SbString(""));
    press(QDialogButtonBox::Ok);
}

TEST_F(CounterSavable, ACounterThatWouldBeComputedFromItselfIsRefused)
{
    writeFile("<perfCounterModule><customPC><counter name='one' type='A'><firstparent>two</firstparent>"
              "<secondparent>testA</secondparent><operation>+</operation></counter></customPC></"
              "perfCounterModule>");
    open();
    manager = openManager();
    SoPerfCounterCreateCounter* dialog = createDialog({"one", "testA"});
    ASSERT_TRUE(dialog);
    dialog->m_name->setText("two");
    dialog->okButtonAction();
    EXPECT_TRUE(
        boxes.take().join('|').endsWith("This counter would be computed from itself. Please rename it."));
    EXPECT_FALSE(isRegistered("two"));
    dialog->m_name->setText("three");
    dialog->okButtonAction();
    EXPECT_TRUE(isRegistered("three"));
    EXPECT_EQ(boxes.take(), QStringList());
}

TEST_F(CounterSavable, NamesThatAnApplicationGaveAreRefusedAndNeverBreakTheFile)
{
    auto* counter = accumCounter("bad\x01name");
    openBoth();
    const QByteArray before = readFile(path());
    select(*manager->m_listCounter, {"bad\x01name", "testB"});
    QTest::mouseClick(manager->m_downArrow, Qt::LeftButton);
    EXPECT_TRUE(
        boxes.take().join('|').endsWith("The name of the counter contains the character U+0001, which cannot "
                                        "be saved. Please remove it."));
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(*dock->getProfiles()[1]->getList(), (QStringList{"testC", "testA", "testB"}))
        << "the other one is added";
    EXPECT_EQ(boxes.take(), QStringList());
    const QByteArray good = readFile(path());
    dock->m_viewer->doubleClickEvent("bad\x01name");
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_EQ(boxes.take(), QStringList{"Performance counter profile: Cannot write file " + path() +
                                        ":\nthe character U+0001 cannot be saved."});
    EXPECT_EQ(readFile(path()), good) << "what was there stays";
    dock->m_viewer->m_legend->selectRow(1);
    QTest::keyClick(dock->m_viewer->m_legend, Qt::Key_Backspace);
    QTest::mouseClick(dock->m_saveView, Qt::LeftButton);
    EXPECT_EQ(boxes.take(), QStringList());
    SoPerfCounterManager::getInstance()->disableCounter(counter->getName());
}

TEST_F(CounterSavable, CountersOfAFileThatCannotBeNamedAreLeftOutAloud)
{
    writeFile(
        "<perfCounterModule><customPC><counter name='\xce\xb1' type='A'/><counter name='\xce\xb2' type='A'/>"
        "<counter name='ok' type='A'/><counter name='child' type='A'><firstparent>\xce\xb1</firstparent>"
        "</counter></customPC><profiles><profile name='p'><listview><pcviewed>\xce\xb1</pcviewed></listview>"
        "</profile></profiles></perfCounterModule>");
    open();
    EXPECT_EQ(boxes.take(),
              QStringList{QString::fromUtf8(
                  "Performance counter profile: Custom counters are left out whose names, or those of "
                  "what they are computed from, have characters beyond Latin-1: α, β, child.")});
    EXPECT_TRUE(isRegistered("ok"));
    EXPECT_FALSE(isRegistered("?"));
    EXPECT_EQ(dock->m_viewer->m_legend->item(0, 4)->text(), "No such counter");
}
