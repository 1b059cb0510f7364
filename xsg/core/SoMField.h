// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoField.h>

#include <string>

/// A field of any number of values. Its text is "[ a, b, c ]", "[ ]" when empty; a single value is read bare
/// too.
class XSG_API SoMField : public SoTyped<SoMField, SoField>
{
public:
    static constexpr const char* ClassName = "MField";
    using SoTyped::SoTyped;

    void get(SbString& text) const final;

    /// The number of values; evaluates first.
    int getNum() const;
    /// Cuts or grows at the end; new values are 0, "", the identity. Negative counts as 0. Where there is no
    /// memory for so many, an SoMemoryError is posted and the field stays; so do the other operations that
    /// make it grow.
    void setNum(int count);

    /// The text of one value. Outside: false, and the text is empty. Costs that one value only.
    bool get1(int index, SbString& text) const;
    /// Writes one value from text; an index past the end grows the field. Refused text or a negative index:
    /// false, values and count stay.
    bool set1(int index, const SbString& text);

    /// Opens `count` new values before `start`; `start` is clamped to 0..getNum().
    virtual void insertSpace(int start, int count);
    /// Removes values; -1 removes all from `start` on. The range is clamped.
    virtual void deleteValues(int start, int count = -1);

    /// Replaces `removed` values from `start` on by the `inserted` values of `from` that begin at
    /// `fromStart`, which may be this field itself: bit for bit, references to nodes included. `from` has to
    /// hold values of the same type. False, and nothing changes, for another type, for a range that does not
    /// lie in its field as a whole, and where there is no memory.
    bool replaceValues(int start, int removed, const SoMField& from, int fromStart, int inserted);
    /// An empty field of this field's class that stands alone, to hold a part of its values; null where the
    /// class cannot be instantiated.
    virtual std::unique_ptr<SoMField> makeSlice() const;

    /// Notifies listeners that values start..start+count-1 changed; `isWritten` false leaves the default
    /// flag.
    void valueChanged(int start, int count, bool isWritten = true);

protected:
    virtual int count() const = 0;
    virtual void resize(int count) = 0;
    virtual void open(int start, int count) = 0;
    virtual void close(int start, int count) = 0;
    virtual std::size_t bytesPerValue() const = 0;
    virtual bool holdsSameValues(const SoMField& other) const = 0;
    /// Replaces values within the field by ones of `from`, which holds values of the same type and may be
    /// this.
    virtual void splice(int start, int removed, const SoMField& from, int fromStart, int inserted) = 0;
    /// The text of one value, and of all with ", " between them.
    virtual void writeValue(std::string& out, int index) const = 0;
    virtual void writeValues(std::string& out) const = 0;
    /// Parses text that is one value and nothing else, and then only stores it at `index`, growing the field
    /// where it must.
    virtual bool parseValue(std::string_view text, int index) = 0;

    bool isList() const final { return true; }
    int valueCount() const final { return count(); }
    void writePlain(std::string& out, int value) const override { writeValue(out, value); }
    /// Makes the field larger; false, with an SoMemoryError, where there is no memory.
    bool grow(int count);
    /// Notifies of values first..last, and of those between the old end and them.
    void valuesGrown(int before, int first, int last);

private:
    bool holds(int start, int number) const;
    template <class Change>
    bool hasMemoryTo(Change change, int wanted);
};

extern template class SoTyped<SoMField, SoField>;
