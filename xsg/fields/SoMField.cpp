#include <xsg/fields/SoMField.h>

#include <xsg/base/XsgText.h>
#include <xsg/core/SoTypedImpl.h>
#include <xsg/fields/SoSField.h>

#include <algorithm>

template class SoTyped<SoSField, SoField>;
template class SoTyped<SoMField, SoField>;

void SoMField::get(SbString& text) const
{
    evaluate();
    std::string& out = text.edit();
    out = "[ ";
    const int n = count();
    for (int i = 0; i < n; ++i) {
        if (i > 0)
            out += ", ";
        writeValue(out, i);
    }
    out += n > 0 ? " ]" : "]";
}

bool SoMField::set(const SbString& text)
{
    XsgTextReader in(text.str());
    if (!readAll(in))
        return false;
    valueWritten();
    return true;
}

int SoMField::getNum() const
{
    evaluate();
    return count();
}

void SoMField::setNum(int wanted)
{
    evaluate();
    const int before = count();
    resize(std::max(wanted, 0));
    valueWritten(std::min(before, count()), -1);
}

bool SoMField::get1(int index, SbString& text) const
{
    evaluate();
    std::string& out = text.edit();
    out.clear();
    if (index < 0 || index >= count())
        return false;
    writeValue(out, index);
    return true;
}

bool SoMField::set1(int index, const SbString& text)
{
    if (index < 0)
        return false;
    evaluate();
    const int before = count();
    if (index >= before)
        resize(index + 1);
    XsgTextReader in(text.str());
    if (!readWhole(text.str(), index) && !(readValue(in, index))) {
        if (index >= before)
            resize(before);
        return false;
    }
    valueWritten(std::min(index, before), 1 + index - std::min(index, before));
    return true;
}

bool SoMField::readWhole(std::string_view /*text*/, int /*index*/)
{
    return false;
}

void SoMField::insertSpace(int start, int number)
{
    evaluate();
    if (number <= 0)
        return;
    open(std::clamp(start, 0, count()), number);
    valueWritten(start, -1);
}

void SoMField::deleteValues(int start, int number)
{
    evaluate();
    const int n = count();
    const long long last = number < 0 ? n : std::min<long long>(n, static_cast<long long>(start) + number);
    const int first = std::clamp(start, 0, n);
    if (last <= first)
        return;
    close(first, static_cast<int>(last) - first);
    valueWritten(first, -1);
}

void SoMField::valueChanged(int start, int number, bool isWritten)
{
    const bool wasDefault = isDefault();
    valueWritten(start, number);
    if (!isWritten)
        setDefault(wasDefault);
}
