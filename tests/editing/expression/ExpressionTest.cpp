// SPDX-License-Identifier: MIT
// What each text means: one table for values, one for what is refused and where.
#include <scopix/editing/expression/SpxExpression.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>

namespace
{

constexpr double Pi = 3.141592653589793;
constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
constexpr double Inf = std::numeric_limits<double>::infinity();

const double Values[] = {8, 3, 0.5}; // of x, row and "Draw calls"

SpxExpressionSettings settingsFor(SpxQuantity quantity, double unit)
{
    return {{"x", "row", "Draw calls"}, quantity, unit};
}

struct Case {
    const char* text;
    double value;
    SpxQuantity quantity = SpxQuantity::Number;
    double unit = 1;
};

constexpr SpxQuantity Angle = SpxQuantity::Angle;
constexpr SpxQuantity Length = SpxQuantity::Length;
constexpr SpxQuantity Time = SpxQuantity::Time;
constexpr double Degree = Pi / 180;

const Case Valid[] = {
    // Numbers
    {"0", 0},
    {"42", 42},
    {"-0", -0.0},
    {"+7", 7},
    {"1.5", 1.5},
    {".5", 0.5},
    {"5.", 5},
    {"1e3", 1000},
    {"1E-3", 0.001},
    {"2.5e+2", 250},
    {"0x1F", 31},
    {"0Xff", 255},
    {" 3 ", 3},
    {"\t4\n", 4},
    {"0.1", 0.1},
    {"007", 7},
    {"1.7976931348623157e308", 1.7976931348623157e308},
    {"5e-324", 5e-324},
    {"\u22125", -5},
    {"--5", 5},
    {"-+-5", 5},
    // A comma as a decimal sign
    {"1,5", 1.5},
    {"-1,5", -1.5},
    {",5", 0.5},
    {"1,234", 1.234},
    {" 1,5 ", 1.5},
    {"1,5e2", 150},
    {"1,5e-2", 0.015},
    {"1,5 cm", 0.015, Length},
    {"12,5%", 0.125},
    {"+= 1,5", 9.5},
    {"-=,5", 7.5},
    {"*= 1,5", 12},
    {"0,5\u00B0", 0.5 * Degree, Angle},
    // Arithmetic
    {"2*1.5", 3},
    {"1+2*3", 7},
    {"(1+2)*3", 9},
    {"10-4-3", 3},
    {"16/4/2", 2},
    {"2^10", 1024},
    {"2**3", 8},
    {"2^3^2", 512},
    {"-2^2", -4},
    {"(-2)^2", 4},
    {"2^-1", 0.5},
    {"2*-3", -6},
    {"2 \u00D7 3", 6},
    {"6 \u00F7 4", 1.5},
    {"2\u00B73", 6},
    {"1/0", Inf},
    {"-1/0", -Inf},
    {"0/0", Nan},
    {"((((1))))", 1},
    {"1 - -1", 2},
    {"3-2+1", 2},
    {"2/4*2", 1},
    {"1e2-1", 99},
    {"50%", 0.5},
    {"50 % * 8", 4},
    {"8 * 50%", 4},
    {"(1+1)%", 0.02},
    // Constants
    {"pi", Pi},
    {"\u03C0", Pi},
    {"pi/3", Pi / 3},
    {"2*pi", 2 * Pi},
    {"tau", 2 * Pi},
    {"e", std::exp(1.0)},
    {"nan", Nan},
    {"inf", Inf},
    {"-inf", -Inf},
    {"\u221E", Inf},
    // Functions
    {"sqrt(2)", std::sqrt(2.0)},
    {"sqrt(-1)", Nan},
    {"cbrt(27)", 3},
    {"abs(-3)", 3},
    {"min(3,1,2)", 1},
    {"max(3,1,2)", 3},
    {"min(4)", 4},
    {"min(nan,1)", Nan},
    {"max(1,nan)", Nan},
    {"clamp(5,0,1)", 1},
    {"clamp(-5,0,1)", 0},
    {"clamp(0.5,0,1)", 0.5},
    {"clamp(nan,0,1)", Nan},
    {"sin(0)", 0},
    {"sin(pi/2)", 1},
    {"cos(pi)", -1},
    {"tan(0)", 0},
    {"asin(1)", Pi / 2},
    {"acos(1)", 0},
    {"atan(1)", Pi / 4},
    {"atan2(1,1)", Pi / 4},
    {"exp(0)", 1},
    {"ln(e)", 1},
    {"log(e)", 1},
    {"log10(1000)", 3},
    {"log2(8)", 3},
    {"floor(-1.5)", -2},
    {"ceil(-1.5)", -1},
    {"trunc(-1.5)", -1},
    {"round(2.5)", 3},
    {"round(7, 5)", 5},
    {"round(0.37, 0.25)", 0.25},
    {"fract(-0.25)", 0.75},
    {"mod(7,3)", 1},
    {"mod(-1,3)", 2},
    {"pow(2,5)", 32},
    {"hypot(3,4)", 5},
    {"hypot(2,3,6)", 7},
    {"sum(1,2,3)", 6},
    {"mean(1,2,6)", 3},
    {"mix(2,4,0.5)", 3},
    {"mix(2,inf,0)", 2},
    {"sign(-4)", -1},
    {"sign(0)", 0},
    {"isnan(nan)", 1},
    {"isnan(1)", 0},
    {"if(1,2,3)", 2},
    {"if(0,2,3)", 3},
    {"max(min(5,3),2)", 3},
    {"min( 1 , 2 )", 1},
    {"sin(30deg)", 0.5},
    {"cos(0.5 turn)", -1},
    // Comparisons
    {"1<2", 1},
    {"2<1", 0},
    {"2<=2", 1},
    {"3>2", 1},
    {"3>=4", 0},
    {"1==1", 1},
    {"1=1", 1},
    {"1!=1", 0},
    {"1<>2", 1},
    {"1 \u2264 2", 1},
    {"1 \u2265 2", 0},
    {"1&&0", 0},
    {"1||0", 1},
    {"!0", 1},
    {"!5", 0},
    {"1 < 2 && 3 < 4", 1},
    {"1+1==2", 1},
    {"0 || 1 && 0", 0},
    {"nan==nan", 0},
    // Variables
    {"x", 8},
    {"x*2", 16},
    {"x+row*0.1", 8.3},
    {"-x^2", -64},
    {"if(x>3 && !(row==0), 1, 2)", 1},
    {"\"Draw calls\" * 2", 1},
    {"x/\"Draw calls\"", 16},
    // Changes of the present value
    {"+= 1", 9},
    {"-= 1", 7},
    {"*= 2", 16},
    {"/= 2", 4},
    {"+= 10 %", 8.8},
    {"-= 10%", 7.2},
    {"*= 50%", 4},
    {"/= 50%", 16},
    {"+= (5+5)%", 8.8},
    {"+= 1 + 50%", 9.5},
    {"+= -10%", 7.2},
    {"+= row", 11},
    {"+= 2cm", 8.02, Length},
    {" += 1", 9},
    // Units
    {"90deg", Pi / 2, Angle},
    {"90\u00B0", Pi / 2, Angle},
    {"1rad", 1, Angle},
    {"500mrad", 0.5, Angle},
    {"0.25turn", Pi / 2, Angle},
    {"2 turns", 4 * Pi, Angle},
    {"90deg", 90, Angle, Degree},
    {"90", 90, Angle, Degree},
    {"1rad", 180 / Pi, Angle, Degree},
    {"(pi/3) rad", 60, Angle, Degree},
    {"90deg + 1rad", 90 + 180 / Pi, Angle, Degree},
    {"sin(30)", 0.5, Angle, Degree},
    {"asin(0.5)", 30, Angle, Degree},
    {"acos(0)", 90, Angle, Degree},
    {"x + 90deg", 98, Angle, Degree},
    {"30cm", 0.3, Length},
    {"1in", 0.0254, Length},
    {"1 inch", 0.0254, Length},
    {"1ft", 0.3048, Length},
    {"1yd", 0.9144, Length},
    {"1mi", 1609.344, Length},
    {"5mm", 0.005, Length},
    {"2dm", 0.2, Length},
    {"3um", 3e-6, Length},
    {"3\u00B5m", 3e-6, Length},
    {"1km + 1m", 1001, Length},
    {"2*30cm", 0.6, Length},
    {"30cm*2", 0.6, Length},
    {"3cm*4cm/2cm", 0.06, Length},
    {"30cm/2cm", 15, Length},
    {"sqrt(3cm*3cm + 4cm*4cm)", 0.05, Length},
    {"hypot(3cm, 4cm)", 0.05, Length},
    {"max(1in, 2cm)", 0.0254, Length},
    {"if(x > 3, 1cm, 1in)", 0.01, Length},
    {"-(1cm + 1mm)", -0.011, Length},
    {"1cm * sin(30deg)", 0.005, Length},
    {"1cm < 1in", 1, Length},
    {"10mm", 1, Length, 0.01},
    {"3ms", 0.003, Time},
    {"2min", 120, Time},
    {"1h", 3600, Time},
    {"5us + 5ns", 5.005e-6, Time},
    {"min(1,2) min", 60, Time},
};

struct Refusal {
    const char* text;
    std::size_t position;
    const char* sentence; // a part of it
    SpxQuantity quantity = SpxQuantity::Number;
};

const Refusal Refused[] = {
    {"", 0, "missing"},
    {"   ", 3, "missing"},
    {"1,234.5", 1, "comma"},
    {"1.234,5", 5, "comma"},
    {"1,2,3", 1, "comma"},
    {"1,5+2", 1, "comma"},
    {"1,5*2", 1, "comma"},
    {"2*1,5", 3, "comma"},
    {"(1,5)", 2, "comma"},
    {"1,", 1, "comma"},
    {"1,5 2", 1, "comma"},
    {"1+", 2, "missing after “+”"},
    {"*2", 0, "“*” makes no sense"},
    {"1 2", 2, "sign"},
    {"1.2.3", 3, "sign"},
    {"2e", 1, "sign"},
    {"2(3)", 1, "“(” makes no sense"},
    {"2x", 1, "sign"},
    {"(1", 2, "“)” is missing"},
    {"1)", 1, "“)” makes no sense"},
    {"()", 1, "“)” makes no sense"},
    {"foo", 0, "“foo” is not known"},
    {"foo(1)", 0, "no function “foo”"},
    {"system(1)", 0, "no function"},
    {"sqrt", 0, "parentheses"},
    {"sqrt()", 0, "takes 1 number and was given 0"},
    {"sqrt(1,2)", 0, "takes 1 number and was given 2"},
    {"clamp(1,2)", 0, "takes 3 numbers and was given 2"},
    {"min()", 0, "1 number or more"},
    {"round(1,2,3)", 0, "1 or 2 numbers"},
    {"min(1,)", 6, "“)” makes no sense"},
    {"min(,1)", 4, "comma"},
    {"min(1", 5, "missing"},
    {"1 ; 2", 2, "“;” has no meaning"},
    {"x = 3 = ", 8, "missing"},
    {"\"x", 0, "quotation mark"},
    {"\"\"", 0, "not known"},
    {"1e999", 0, "too large"},
    {"\xE2\x82\xAC", 0, "“€” has no meaning"},
    {"\xFF", 0, "no meaning"},
    {"90deg", 2, "unit of an angle, and a plain number is wanted"},
    {"5cm", 1, "unit of a length, and an angle is wanted", SpxQuantity::Angle},
    {"sin(5cm)", 5, "unit of a length, and an angle is wanted", SpxQuantity::Length},
    {"1cm*1cm", 0, "not a length", SpxQuantity::Length},
    {"1/1cm", 0, "not a length", SpxQuantity::Length},
    {"pi/3rad", 0, "not an angle", SpxQuantity::Angle},
    {"1cm cm", 4, "sign", SpxQuantity::Length},
    {"(1cm) cm", 6, "already", SpxQuantity::Length},
    {"1cm^2", 3, "plain numbers", SpxQuantity::Length},
    {"ln(1cm)", 0, "without a unit", SpxQuantity::Length},
    {"1cm*1cm + 1cm", 8, "different units", SpxQuantity::Length},
    {"max(1cm*1cm, 1cm)", 13, "another unit", SpxQuantity::Length},
    {"*= 2cm", 3, "plain number", SpxQuantity::Length},
    {"+=", 2, "missing"},
    {"1 += 2", 2, "“+=” makes no sense"},
};

} // namespace

TEST(Expression, TheTableHasEnoughCases)
{
    EXPECT_GE(std::size(Valid) + std::size(Refused), 200U);
}

TEST(Expression, EveryValidTextHasItsValue)
{
    for (const Case& each : Valid) {
        SCOPED_TRACE(each.text);
        const SpxExpression expression(each.text, settingsFor(each.quantity, each.unit));
        ASSERT_TRUE(expression.isValid()) << expression.getError().sentence.getText();
        const double value = expression.evaluate(Values);
        if (std::isnan(each.value))
            EXPECT_TRUE(std::isnan(value)) << value;
        else if (std::isinf(each.value) || each.value == 0)
            EXPECT_NEAR(each.value == value ? 0 : std::fabs(value - each.value), 0, 1e-15);
        else
            EXPECT_NEAR(value / each.value, 1, 1e-14);
    }
}

TEST(Expression, EveryOtherTextIsRefusedAtItsPlaceInOneSentence)
{
    for (const Refusal& each : Refused) {
        SCOPED_TRACE(each.text);
        const SpxExpression expression(each.text, settingsFor(each.quantity, 1));
        ASSERT_FALSE(expression.isValid()) << expression.evaluate(Values);
        const SpxExpressionError& error = expression.getError();
        EXPECT_EQ(error.position, each.position) << error.sentence.getText();
        EXPECT_NE(error.sentence.getText().find(each.sentence), std::string::npos)
            << error.sentence.getText();
        EXPECT_EQ(error.sentence.getText().back(), '.') << error.sentence.getText();
        EXPECT_EQ(error.sentence.getText().find(". "), std::string::npos) << error.sentence.getText();
        EXPECT_TRUE(std::isnan(expression.evaluate(Values)));
    }
}

TEST(Expression, ANumberKeepsItsBits)
{
    for (const double number : {0.1, 1 / 3.0, 5e-324, 1.7976931348623157e308, -0.0}) {
        char text[32];
        std::snprintf(text, sizeof text, "%.17g", number);
        const double value = SpxExpression(text).evaluate();
        EXPECT_EQ(value, number);
        EXPECT_EQ(std::signbit(value), std::signbit(number));
    }
}

TEST(Expression, WithoutAPresentValueNothingCanBeChanged)
{
    const SpxExpression expression("+= 1");
    EXPECT_FALSE(expression.isValid());
    EXPECT_NE(expression.getError().sentence.getText().find("present value"), std::string::npos);
    EXPECT_FALSE(SpxExpression("x").isValid());
}

TEST(Expression, LengthAndDepthAreLimited)
{
    const std::string longest(SpxExpression::MaximumLength, '1');
    EXPECT_FALSE(SpxExpression(longest + "1").isValid());
    EXPECT_NE(SpxExpression(longest + "1").getError().sentence.getText().find("1000"), std::string::npos);
    EXPECT_TRUE(SpxExpression(std::string(SpxExpression::MaximumLength - 1, ' ') + "1").isValid());
    for (const char* opening : {"(", "-", "sqrt(", "2^", "1+(", "min(1,"}) {
        std::string text;
        for (int i = 0; i < 150; ++i)
            text += opening;
        const SpxExpression deep(text + "1");
        EXPECT_FALSE(deep.isValid()) << opening;
        EXPECT_NE(deep.getError().sentence.getText().find("deeply"), std::string::npos)
            << deep.getError().sentence.getText();
    }
}

TEST(Expression, ALongFlatFormulaIsNotDeep)
{
    std::string text = "1";
    for (int i = 0; i < 400; ++i)
        text += "+1";
    EXPECT_EQ(SpxExpression(text).evaluate(), 401);
    std::string many = "max(0";
    for (int i = 1; i < 64; ++i)
        many += "," + std::to_string(i);
    EXPECT_EQ(SpxExpression(many + ")").evaluate(), 63);
    EXPECT_FALSE(SpxExpression(many + ",64)").isValid());
}

TEST(Expression, OneCompiledFormServesManyValuesAndCopies)
{
    const SpxExpression expression("x + row * 0.5", {{"x", "row"}, SpxQuantity::Number, 1});
    const SpxExpression copy = expression;
    for (int row = 0; row < 10; ++row) {
        const double values[] = {100, double(row)};
        EXPECT_EQ(expression.evaluate(values), 100 + row * 0.5);
        EXPECT_EQ(copy.evaluate(values), 100 + row * 0.5);
    }
    double elsewhere = 0;
    std::thread([&] {
        const double values[] = {1, 2};
        elsewhere = copy.evaluate(values);
    }).join();
    EXPECT_EQ(elsewhere, 2);
}

TEST(Expression, ANewOneIsNotValid)
{
    EXPECT_FALSE(SpxExpression().isValid());
    EXPECT_TRUE(std::isnan(SpxExpression().evaluate()));
}
