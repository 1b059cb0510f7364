// SPDX-License-Identifier: MIT
// Texts and numbers between person, Qt and scene graph.
#include "EdValidators.h"

#include <scopix/editing/SpxText.h>

#include <QLineEdit>
#include <QLocale>
#include <QTest>

#include <gtest/gtest.h>

#include <limits>

namespace
{

// The text of an input with this validator after the user has typed `keys`.
QString typed(QValidator* validator, const QString& keys)
{
    QLineEdit input;
    validator->setParent(&input);
    input.setValidator(validator);
    QTest::keyClicks(&input, keys);
    return input.text();
}

QValidator::State stateOf(const QValidator& validator, QString text)
{
    int position = 0;
    return validator.validate(text, position);
}

// Qt's own default locale, which validators take on, for as long as this lives.
struct GermanLocale {
    GermanLocale() { QLocale::setDefault(QLocale(QLocale::German)); }
    ~GermanLocale() { QLocale::setDefault(m_before); }
    QLocale m_before;
};

} // namespace

TEST(Texts, KeepEveryCharacterBothWays)
{
    const QString text = QString::fromUtf8("plain äöü € \xf0\x9f\x8e\xa8");
    EXPECT_EQ(SpxText::toQString(SpxText::toSbString(text)), text);
    EXPECT_EQ(SpxText::toSbString(text).str(), text.toStdString());
    EXPECT_EQ(SpxText::toQString(SbName("caf\xe9")), QString::fromUtf8("café"));
}

TEST(Numbers, InvalidTextGivesZero)
{
    EXPECT_EQ(SpxText::toFloatOr0("1.5"), 1.5F);
    EXPECT_EQ(SpxText::toFloatOr0("abc"), 0.F);
    EXPECT_EQ(SpxText::toFloatOr0(""), 0.F);
    EXPECT_EQ(SpxText::toFloatOr0("1,5"), 0.F);
    EXPECT_EQ(SpxText::toFloatOr0("1e39"), 0.F);
    EXPECT_EQ(SpxText::toDoubleOr0("1e39"), 1e39);
    EXPECT_EQ(SpxText::toDoubleOr0("1e400"), 0.0);
}

TEST(IntValidator, RefusesWhileTypingWhatTheTypeCannotHold)
{
    EXPECT_EQ(typed(new EdIntValidator(-32768, 32767), "40000"), "4000");
    EXPECT_EQ(typed(new EdIntValidator(-32768, 32767), "-40000"), "-4000");
    EXPECT_EQ(typed(new EdIntValidator(-32768, 32767), "-32768"), "-32768");
    EXPECT_EQ(typed(new EdIntValidator(0, 65535), "70000"), "7000");
    EXPECT_EQ(typed(new EdIntValidator(0, 100), "250"), "25");
    EXPECT_EQ(typed(new EdIntValidator, "2147483647"), "2147483647");
    EXPECT_EQ(typed(new EdIntValidator, "-2147483648"), "-2147483648");
    EXPECT_EQ(typed(new EdIntValidator, "9999999999"), "999999999");
}

// The sign may still come.
TEST(IntValidator, KeepsANumberThatItsSignWouldMakeGood)
{
    EXPECT_EQ(stateOf(EdIntValidator(-40000, 100), "30000"), QValidator::Intermediate);
    EXPECT_EQ(stateOf(EdIntValidator(-40000, 100), "-30000"), QValidator::Acceptable);
}

TEST(RealValidator, RefusesWhileTypingWhatTheTypeCannotHold)
{
    EXPECT_EQ(typed(EdRealValidator::forFloat(nullptr), "4e38"), "4e3");
    EXPECT_EQ(typed(EdRealValidator::forFloat(nullptr), "-4e38"), "-4e3");
    EXPECT_EQ(typed(EdRealValidator::forFloat(nullptr), "3e38"), "3e38");
    EXPECT_EQ(typed(EdRealValidator::forDouble(nullptr), "4e38"), "4e38");
    EXPECT_EQ(typed(EdRealValidator::forDouble(nullptr), "1e400"), "1e40");
}

TEST(RealValidator, TakesTheTextsThatEditorsShow)
{
    const EdRealValidator validator(-std::numeric_limits<float>::max(), std::numeric_limits<float>::max(), 6);
    for (const char* text : {"1.5", "0.501961", "1e-07", ".5", "5.", "+5", "0.000000",
                             "340282346638528859811704183484516925440.000000"})
        EXPECT_EQ(stateOf(validator, text), QValidator::Acceptable) << text;
    for (const char* text : {"", "-", "1e", "1e-"})
        EXPECT_EQ(stateOf(validator, text), QValidator::Intermediate) << text;
    for (const char* text : {"abc", "nan", "inf", " 5", "1.2345678"})
        EXPECT_EQ(stateOf(validator, text), QValidator::Invalid) << text;
}

TEST(Validators, RefuseGroupSeparatorsAndDecimalCommas)
{
    const GermanLocale german;
    const EdRealValidator real(-100.0, 100.0, 6);
    EXPECT_EQ(stateOf(real, "1.5"), QValidator::Acceptable);
    EXPECT_EQ(stateOf(real, "1,5"), QValidator::Invalid);
    const EdIntValidator integer(0, 100000);
    EXPECT_EQ(stateOf(integer, "1000"), QValidator::Acceptable);
    EXPECT_EQ(stateOf(integer, "1.000"), QValidator::Invalid);
    EXPECT_EQ(stateOf(integer, "1,000"), QValidator::Invalid);
}
