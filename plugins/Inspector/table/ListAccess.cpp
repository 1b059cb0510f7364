// SPDX-License-Identifier: MIT
#include "table/ListAccess.h"

#include "table/CellNumber.h"
#include "table/CellTraits.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoMFBitMask.h>
#include <xsg/fields/SoMFBool.h>
#include <xsg/fields/SoMFBox3f.h>
#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoMFDouble.h>
#include <xsg/fields/SoMFEnum.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoMFMatrix.h>
#include <xsg/fields/SoMFName.h>
#include <xsg/fields/SoMFPlane.h>
#include <xsg/fields/SoMFRotation.h>
#include <xsg/fields/SoMFShort.h>
#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoMFTime.h>
#include <xsg/fields/SoMFUInt32.h>
#include <xsg/fields/SoMFUShort.h>
#include <xsg/fields/SoMFVec2d.h>
#include <xsg/fields/SoMFVec2f.h>
#include <xsg/fields/SoMFVec2i32.h>
#include <xsg/fields/SoMFVec2s.h>
#include <xsg/fields/SoMFVec3d.h>
#include <xsg/fields/SoMFVec3f.h>
#include <xsg/fields/SoMFVec3s.h>
#include <xsg/fields/SoMFVec4d.h>
#include <xsg/fields/SoMFVec4f.h>
#include <xsg/nodes/base/SoMFNode.h>

#include <QCoreApplication>

#include <array>

namespace inspector
{

namespace
{

constexpr int LongestBrief = 2000; // bytes

bool isLessNumber(double a, double b)
{
    return a < b || (std::isnan(b) && !std::isnan(a));
}

template <class Field>
class TypedAccess : public ListAccess
{
public:
    using Value = typename Field::Value;

protected:
    static const Value& at(const SoMField& list, int row) { return static_cast<const Field&>(list)[row]; }
    // Without a notification: the list is nobody's.
    static Value& ref(SoMField& list, int row) { return static_cast<Field&>(list).startEditing()[row]; }
};

// --- Numbers, one or several in a value
template <class Field>
class NumberAccess : public TypedAccess<Field>
{
    using Base = TypedAccess<Field>;
    using Traits = CellTraits<typename Field::Value>;
    using Number = typename Traits::Number;

public:
    ListAccess::Kind kind() const override { return ListAccess::Kind::Number; }
    QStringList headings() const override { return Traits::headings(); }

    QString text(const SoMField& list, int row, int column) const override
    {
        return CellNumber::text(Traits::get(Base::at(list, row), column));
    }
    bool setText(SoMField& list, int row, int column, const QString& text) const override
    {
        Number number{};
        if (!CellNumber::read(text, number))
            return false;
        Traits::set(Base::ref(list, row), column, number);
        return true;
    }
    void readNumbers(const SoMField& list, int row, int column, int count, double* out) const override
    {
        const auto* values = static_cast<const Field&>(list).getValues(row);
        for (int i = 0; i < count; ++i)
            out[i] = double(Traits::get(values[i], column));
    }
    bool setNumber(SoMField& list, int row, int column, double number) const override
    {
        Number converted{};
        if (!CellNumber::convert(number, converted))
            return false;
        Traits::set(Base::ref(list, row), column, converted);
        return true;
    }
    QString shortText(const SoMField& list, int row, int column, int digits) const override
    {
        if (std::is_integral_v<Number>)
            return text(list, row, column);
        return QString::number(double(Traits::get(Base::at(list, row), column)), 'g', digits);
    }
    bool isLess(const SoMField& list, int row, int other, int column) const override
    {
        return isLessNumber(double(Traits::get(Base::at(list, row), column)),
                            double(Traits::get(Base::at(list, other), column)));
    }
};

class ColorAccess : public NumberAccess<SoMFColor>
{
public:
    QStringList headings() const override { return {"r", "g", "b"}; }
    QStringList longHeadings() const override
    {
        return {QCoreApplication::translate("ListAccess", "red"),
                QCoreApplication::translate("ListAccess", "green"),
                QCoreApplication::translate("ListAccess", "blue")};
    }
    QColor swatch(const SoMField& list, int row) const override
    {
        const SbVec3f& color = at(list, row);
        const auto channel = [&](int i) {
            const float value = color[i];
            return value >= 0 ? std::min(double(value), 1.0) : 0.0; // NaN too
        };
        return QColor::fromRgbF(channel(0), channel(1), channel(2));
    }
};

class PlaneAccess : public NumberAccess<SoMFPlane>
{
public:
    QStringList longHeadings() const override
    {
        return {QCoreApplication::translate("ListAccess", "normal x"),
                QCoreApplication::translate("ListAccess", "normal y"),
                QCoreApplication::translate("ListAccess", "normal z"),
                QCoreApplication::translate("ListAccess", "distance from the origin")};
    }
};

class BoolAccess : public NumberAccess<SoMFBool>
{
public:
    Kind kind() const override { return Kind::Truth; }
    QString text(const SoMField& list, int row, int /*column*/) const override
    {
        return at(list, row) ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    }
    bool setText(SoMField& list, int row, int /*column*/, const QString& text) const override
    {
        const QString word = text.trimmed().toUpper();
        const bool isTrue = word == QLatin1String("TRUE") || word == QLatin1String("1");
        if (!isTrue && word != QLatin1String("FALSE") && word != QLatin1String("0"))
            return false;
        ref(list, row) = isTrue;
        return true;
    }
    bool setNumber(SoMField& list, int row, int /*column*/, double number) const override
    {
        if (std::isnan(number))
            return false;
        ref(list, row) = number != 0;
        return true;
    }
    QString shortText(const SoMField& list, int row, int column, int /*digits*/) const override
    {
        return text(list, row, column);
    }
    QStringList choices(const SoMField& /*list*/) const override { return {"TRUE", "FALSE"}; }
};

// --- Texts
template <class T>
struct Words;

template <>
struct Words<SbString> {
    static constexpr ListAccess::Kind Kind = ListAccess::Kind::Text;
    static QString get(const SbString& value) { return SpxText::toQString(value); }
    // Megabytes of text are not converted for what fits into a cell.
    static QString brief(const SbString& value)
    {
        return value.getLength() <= LongestBrief ? get(value) : get(value.str().substr(0, LongestBrief));
    }
    static bool set(SbString& value, const QString& text)
    {
        value = SpxText::toSbString(text);
        return true;
    }
};

template <>
struct Words<SbName> {
    static constexpr ListAccess::Kind Kind = ListAccess::Kind::Text;
    static QString get(SbName value) { return SpxText::toQString(value); }
    static QString brief(SbName value) { return get(value); }
    // Names are Latin-1.
    static bool set(SbName& value, const QString& text)
    {
        const QByteArray latin = text.toLatin1();
        if (QString::fromLatin1(latin) != text || latin.contains('\0'))
            return false;
        value = SbName(latin.constData());
        return true;
    }
};

template <>
struct Words<SoRef<SoNode>> {
    static constexpr ListAccess::Kind Kind = ListAccess::Kind::Node;
    static QString get(const SoRef<SoNode>& value)
    {
        std::string text;
        xsg::ValueText<SoRef<SoNode>>::write(text, value);
        xsg::TextReader in(text);
        std::string bare;
        return SpxText::toQString(SbString(in.peek() == '"' && in.readQuoted(bare) ? bare : text));
    }
    static QString brief(const SoRef<SoNode>& value) { return get(value); }
    // As get() gives it, without quotes, or as files have it.
    static bool set(SoRef<SoNode>& value, const QString& text)
    {
        const std::string bare = text.trimmed().toStdString();
        std::string quoted;
        xsg::appendQuoted(quoted, bare);
        return read(value, bare) || read(value, quoted);
    }
    static bool read(SoRef<SoNode>& value, const std::string& text)
    {
        xsg::TextReader in(text);
        SoRef<SoNode> node;
        if (!xsg::ValueText<SoRef<SoNode>>::read(in, node) || !in.onlyBlanksLeft())
            return false;
        value = node;
        return true;
    }
};

template <class Field>
class WordAccess : public TypedAccess<Field>
{
    using Base = TypedAccess<Field>;
    using Word = Words<typename Field::Value>;

public:
    ListAccess::Kind kind() const override { return Word::Kind; }
    QStringList headings() const override { return {QStringLiteral("value")}; }
    QString text(const SoMField& list, int row, int /*column*/) const override
    {
        return Word::get(Base::at(list, row));
    }
    QString shortText(const SoMField& list, int row, int /*column*/, int /*digits*/) const override
    {
        return Word::brief(Base::at(list, row));
    }
    bool setText(SoMField& list, int row, int /*column*/, const QString& text) const override
    {
        return Word::set(Base::ref(list, row), text);
    }
    bool isLess(const SoMField& list, int row, int other, int column) const override
    {
        return text(list, row, column) < text(list, other, column);
    }
};

// --- Named numbers
class EnumAccess : public TypedAccess<SoMFEnum>
{
public:
    Kind kind() const override { return Kind::Choice; }
    QStringList headings() const override { return {QStringLiteral("value")}; }
    QString text(const SoMField& list, int row, int /*column*/) const override
    {
        return nameOf(tableOf(list), at(list, row));
    }
    bool setText(SoMField& list, int row, int /*column*/, const QString& text) const override
    {
        int value = 0;
        if (!valueOf(tableOf(list), text.trimmed(), value))
            return false;
        ref(list, row) = value;
        return true;
    }
    QStringList choices(const SoMField& list) const override
    {
        QStringList all;
        for (const SbName name : tableOf(list).names)
            all.append(SpxText::toQString(name));
        return all;
    }
    bool isLess(const SoMField& list, int row, int other, int /*column*/) const override
    {
        return at(list, row) < at(list, other);
    }

protected:
    static const SoEnumTable& tableOf(const SoMField& list)
    {
        return static_cast<const SoMFEnum&>(list).getTable();
    }
    /// A value without a name is shown as its number.
    static QString nameOf(const SoEnumTable& table, int value)
    {
        const int index = table.indexOf(value);
        return index < 0 ? QString::number(value) : SpxText::toQString(table.names[std::size_t(index)]);
    }
    static bool valueOf(const SoEnumTable& table, const QString& text, int& value)
    {
        return table.findValue(SbName(text.toLatin1().constData()), value) || CellNumber::read(text, value);
    }
};

class MaskAccess : public EnumAccess
{
public:
    Kind kind() const override { return Kind::Flags; }
    QString text(const SoMField& list, int row, int /*column*/) const override
    {
        const SoEnumTable& table = tableOf(list);
        unsigned left = unsigned(at(list, row));
        QStringList names;
        for (std::size_t i = 0; i < table.values.size(); ++i) {
            const auto bits = unsigned(table.values[i]);
            if (bits == 0 || (left & bits) != bits)
                continue;
            names.append(SpxText::toQString(table.names[i]));
            left &= ~bits;
        }
        if (left || names.isEmpty())
            names.append(left ? QStringLiteral("0x") + QString::number(left, 16) : QStringLiteral("0"));
        return names.join(QLatin1String(" | "));
    }
    bool setText(SoMField& list, int row, int /*column*/, const QString& text) const override
    {
        unsigned mask = 0;
        for (const QString& name : text.split('|')) {
            unsigned bits = 0;
            int value = 0;
            if (!CellNumber::read(name, bits)) {
                if (!valueOf(tableOf(list), name.trimmed(), value))
                    return false;
                bits = unsigned(value);
            }
            mask |= bits;
        }
        ref(list, row) = int(mask);
        return true;
    }
};

struct Entry {
    SoType type;
    const ListAccess* access;
};

template <class Access>
const ListAccess* one()
{
    static const Access access;
    return &access;
}

template <class... Fields>
void addNumbers(std::vector<Entry>& all)
{
    (all.push_back({Fields::getClassTypeId(), one<NumberAccess<Fields>>()}), ...);
}

template <class... Fields>
void addWords(std::vector<Entry>& all)
{
    (all.push_back({Fields::getClassTypeId(), one<WordAccess<Fields>>()}), ...);
}

// A type comes after the one that it derives from.
std::vector<Entry> makeEntries()
{
    std::vector<Entry> all;
    addNumbers<SoMFInt32, SoMFUInt32, SoMFShort, SoMFUShort, SoMFFloat, SoMFDouble, SoMFTime, SoMFVec2f,
               SoMFVec2d, SoMFVec2i32, SoMFVec2s, SoMFVec3f, SoMFVec3d, SoMFVec3s, SoMFVec4f, SoMFVec4d,
               SoMFRotation, SoMFMatrix, SoMFBox3f>(all);
    addWords<SoMFString, SoMFName, SoMFNode>(all);
    all.push_back({SoMFColor::getClassTypeId(), one<ColorAccess>()});
    all.push_back({SoMFPlane::getClassTypeId(), one<PlaneAccess>()});
    all.push_back({SoMFBool::getClassTypeId(), one<BoolAccess>()});
    all.push_back({SoMFEnum::getClassTypeId(), one<EnumAccess>()});
    all.push_back({SoMFBitMask::getClassTypeId(), one<MaskAccess>()});
    return all;
}

const std::vector<Entry>& entries()
{
    static const std::vector<Entry> all = makeEntries();
    return all;
}

} // namespace

ListAccess::~ListAccess() = default;

const ListAccess* ListAccess::of(const SoMField& list)
{
    const ListAccess* access = nullptr;
    for (const Entry& entry : entries()) {
        if (list.isOfType(entry.type))
            access = entry.access;
    }
    return access;
}

std::vector<SoType> ListAccess::types()
{
    std::vector<SoType> all;
    for (const Entry& entry : entries())
        all.push_back(entry.type);
    return all;
}

void ListAccess::readNumbers(const SoMField& /*list*/, int /*row*/, int /*column*/, int count,
                             double* out) const
{
    std::fill_n(out, count, std::numeric_limits<double>::quiet_NaN());
}

double ListAccess::number(const SoMField& list, int row, int column) const
{
    double number = 0;
    readNumbers(list, row, column, 1, &number);
    return number;
}

bool ListAccess::setNumber(SoMField& /*list*/, int /*row*/, int /*column*/, double /*number*/) const
{
    return false;
}

QString ListAccess::shortText(const SoMField& list, int row, int column, int /*digits*/) const
{
    return text(list, row, column);
}

QColor ListAccess::swatch(const SoMField& /*list*/, int /*row*/) const
{
    return {};
}

QStringList ListAccess::choices(const SoMField& /*list*/) const
{
    return {};
}

} // namespace inspector
