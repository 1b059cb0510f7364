// SPDX-License-Identifier: MIT
// Random text into every line input of every editor. SCOPIX_TYPING_SECONDS lengthens it; `./test --asan` runs
// it for a minute.
#include "EditorRows.h"
#include "Gallery.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QSpinBox>
#include <QTest>

#include <map>
#include <random>
#include <set>

namespace
{

class Typist
{
public:
    bool oneIn(int count) { return pick(count) == 0; }
    int pick(int count) { return int(m_random() % unsigned(count)); }

    QString word()
    {
        static const QStringList words =
            QStringLiteral(
                "inf|-inf|infinity|nan|-nan|1e39|-1e39|1e-46|1e999|0x1F|017|-0|2147483648|-2147483649|"
                "4294967296|65536|99999999999999999999999|1,5|1.234.567|0,0,0|\"|\"\"|\\|TRUE|NULL|~")
                .split('|');
        static const QStringList values =
            QStringLiteral("7|2.5|-3|1 2|3 4 5|1e3 2 -3 4|1 2 3 4 5 6|-6 -5 -4 3 2 1").split('|');
        const QStringList& list = oneIn(2) ? words : values;
        return list[pick(list.size())];
    }
    QString letters()
    {
        static const QString letters =
            QStringLiteral("0123456789.-+eEnaixfX ,;\"'\\#%@{}[]()|\t") +
            QString::fromUtf8("\u00e9\u00df\u4e2d\u0660\u2212\u00a0\U0001F600\u202e\u0301");
        QString text;
        for (int i = oneIn(40) ? 2000 + pick(20000) : pick(24); i > 0; --i)
            text += letters[pick(letters.size())];
        return text;
    }

    void typeInto(QWidget* input)
    {
        input->setFocus();
        const bool isWord = oneIn(3);
        if (isWord || oneIn(2))
            QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
        const QString typed = isWord ? word() : letters();
        if (typed.size() > 24 || oneIn(6)) {
            QApplication::clipboard()->setText(typed);
            QTest::keyClick(input, Qt::Key_V, Qt::ControlModifier);
            return;
        }
        for (const QChar& letter : typed)
            QTest::sendKeyEvent(QTest::Click, input, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }

    void end(QWidget* input)
    {
        static constexpr Qt::Key Keys[] = {Qt::Key_Return, Qt::Key_Return, Qt::Key_Enter,
                                           Qt::Key_Tab,    Qt::Key_Escape, Qt::Key_Backspace,
                                           Qt::Key_Delete, Qt::Key_Home,   Qt::Key_Up};
        QTest::keyClick(input, Keys[pick(int(std::size(Keys)))]);
    }

private:
    std::mt19937 m_random{20};
};

class Typing : public Gallery
{
protected:
    // Beside the button of the grid, and in the grid.
    static QList<QWidget*> linesOfAll(QWidget* editor)
    {
        QList<QWidget*> lines;
        for (QLineEdit* line : editor->findChildren<QLineEdit*>()) {
            auto* spin = qobject_cast<QSpinBox*>(line->parentWidget());
            lines << (spin ? static_cast<QWidget*>(spin) : line);
        }
        return lines;
    }
    static void openGrid(QWidget* editor)
    {
        auto* pencil = editor->findChild<QPushButton*>("m_editButton");
        if (pencil)
            QTest::mouseClick(pencil, Qt::LeftButton);
    }
    static std::string shown(QWidget* line)
    {
        const auto* spin = qobject_cast<QSpinBox*>(line);
        return (spin ? spin->text() : qobject_cast<QLineEdit*>(line)->text()).toStdString();
    }
    // The field's text reads back, to the same value.
    static void expectReadable(SoSField* field)
    {
        const std::string written = textOf(*field);
        ASSERT_FALSE(written.empty()) << typeOf(field);
        ASSERT_TRUE(field->set(SbString(written))) << typeOf(field) << ' ' << written;
        ASSERT_EQ(textOf(*field), written) << typeOf(field);
    }
};

} // namespace

TEST_F(Typing, ReachesEveryLineOfEveryEditor)
{
    const std::map<std::string, int> expected{
        {"SFBool", 0},  {"SFInt32", 1},   {"SFUInt32", 1}, {"SFShort", 1},    {"SFUShort", 1},
        {"SFFloat", 1}, {"SFDouble", 1},  {"SFTime", 1},   {"SFString", 1},   {"SFName", 1},
        {"SFEnum", 0},  {"SFBitMask", 0}, {"SFNode", 1},   {"SFVec2f", 2},    {"SFVec2d", 1},
        {"SFVec2s", 2}, {"SFVec3f", 3},   {"SFVec3d", 1},  {"SFVec3s", 1},    {"SFVec4f", 4},
        {"SFVec4d", 1}, {"SFColor", 3},   {"SFPlane", 4},  {"SFRotation", 4}, {"SFMatrix", 17},
        {"SFBox3s", 7}, {"SFBox3f", 1},   {"SFImage", 0},  {"SFVec2i32", 2},  {"SFFilePathString", 1}};
    std::map<std::string, int> found;
    for (SoSField* field : m_fields) {
        QWidget* editor = show(field);
        openGrid(editor);
        found[typeOf(field)] = 0;
        for (QWidget* line : linesOfAll(editor)) {
            ::typeInto(line, "1");
            found[typeOf(field)] += shown(line) == "1";
        }
    }
    EXPECT_EQ(found, expected);
}

TEST_F(Typing, NoTextThatSomebodyTypesBreaksAField)
{
    Typist typist;
    constexpr int FewestRounds = 40;
    const qint64 least = 1000 * qint64(qEnvironmentVariableIntValue("SCOPIX_TYPING_SECONDS"));
    QElapsedTimer clock;
    clock.start();
    std::set<std::string> changed;
    for (int round = 0; round < FewestRounds || clock.elapsed() < least; ++round) {
        for (SoSField* field : m_fields) {
            QWidget* editor = show(field);
            const std::string before = textOf(*field);
            if (typist.oneIn(2))
                openGrid(editor);
            for (QWidget* line : linesOfAll(editor)) {
                typist.typeInto(line);
                if (!typist.oneIn(4))
                    typist.end(line);
                if (typist.oneIn(4))
                    TestHost::pump();
                if (typist.oneIn(8))
                    m_host.undo();
                if (typist.oneIn(8))
                    m_host.redo();
                expectReadable(field);
            }
            showNothing();
            expectReadable(field);
            if (textOf(*field) != before)
                changed.insert(typeOf(field));
            if (HasFatalFailure())
                return;
            m_host.clearUndo();
        }
    }
    for (SoSField* field : m_fields) {
        const bool hasText = !linesOfAll(show(field)).isEmpty() && typeOf(field) != "SFNode";
        EXPECT_EQ(changed.count(typeOf(field)), hasText ? 1U : 0U) << typeOf(field);
    }
}
