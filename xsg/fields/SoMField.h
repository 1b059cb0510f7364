// A field of any number of values. Its text is "[ a, b, c ]", "[ ]" when empty; a single value is read bare too.
#pragma once

#include <xsg/fields/SoField.h>

#include <string>

class XsgTextReader;

class XSG_API SoMField : public SoTyped<SoMField, SoField>
{
public:
    static constexpr const char* ClassName = "MField";
    using SoTyped::SoTyped;

    void get(SbString& text) const final;
    bool set(const SbString& text) final;

    // The number of values; evaluates first.
    int getNum() const;
    // Cuts or grows at the end; new values are 0, "", the identity. Negative counts as 0.
    void setNum(int count);

    // The text of one value. Outside: false, and the text is empty. Costs that one value only.
    bool get1(int index, SbString& text) const;
    // Writes one value from text; an index past the end grows the field. Refused text or a negative index:
    // false, values and count stay.
    bool set1(int index, const SbString& text);

    // Opens `count` new values before `start`; `start` is clamped to 0..getNum().
    virtual void insertSpace(int start, int count);
    // Removes values; -1 removes all from `start` on. The range is clamped.
    virtual void deleteValues(int start, int count = -1);

    // Tells listeners that values start..start+count-1 changed; `isWritten` false leaves the default flag.
    void valueChanged(int start, int count, bool isWritten = true);

protected:
    virtual int count() const = 0;
    virtual void resize(int count) = 0;
    virtual void open(int start, int count) = 0;
    virtual void close(int start, int count) = 0;
    virtual void writeValue(std::string& out, int index) const = 0;
    // Parses one value into place `index`, which exists; false leaves it as it was.
    virtual bool readValue(XsgTextReader& in, int index) = 0;
    // Parses into values of its own and takes them over only when the whole list is good.
    virtual bool readAll(XsgTextReader& in) = 0;
    // Whether a text without brackets or quotes is one value as it stands (strings).
    virtual bool readWhole(std::string_view text, int index);
};

extern template class SoTyped<SoMField, SoField>;
