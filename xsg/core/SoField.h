// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoWriteRecorder.h>
#include <xsg/types/SoTyped.h>
#include <xsg/values/SbName.h>
#include <xsg/values/SbString.h>

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

class SoChangeListener;
class SoFieldContainer;

/// A value of a node: readable and writable as text, watched by sensors, and able to follow another field.
/// A field with an owner belongs to it; one without stands alone. Belongs to the graph's thread.
class XSG_API SoField : public SoTyped<SoField, SoTypedObject>
{
public:
    static constexpr const char* ClassName = "Field";

    SoField(const SoField&) = delete;
    SoField& operator=(const SoField&) = delete;
    ~SoField() override;

    /// The value as text that set() reads back to the same bits; evaluates first; never an empty text.
    virtual void get(SbString& text) const = 0;
    /// Takes a value from text. Text that does not parse: false, the value stays and no listener is notified.
    /// A write notifies even when the value is the same.
    virtual bool set(const SbString& text);
    /// As set(), but the fields that follow this one keep their values and fetch nothing, as for a file that
    /// holds values of their own for them.
    bool setWithoutPropagation(const SbString& text);
    /// True when both have the same type and value.
    virtual bool isSame(const SoField& other) const = 0;
    /// Takes over the value of a field of the same or a convertible type; false, without a change, where
    /// there is no conversion or the other's text does not parse.
    bool copyFrom(const SoField& other);

    bool isIgnored() const { return m_ignored; }
    void setIgnored(bool ignored);
    /// True until the value is written.
    bool isDefault() const { return m_default; }
    void setDefault(bool isDefault);

    /// Null for a field that stands alone.
    SoFieldContainer* getContainer() const { return m_container; }
    SbName getName() const { return m_name ? SbName(m_name) : SbName(); }

    /// Follows `source`: whenever it changes, this field takes its value when next read. Refused (false)
    /// where the types do not convert or a loop would close. A direct write stands until the source changes
    /// again. A value of the source that does not convert (a text that is no number) leaves this one's.
    bool connectFrom(SoField* source);
    void disconnect();
    SoField* getConnectedField() const { return m_source; }
    bool isConnected() const { return m_source != nullptr; }
    /// Fields convert when their values have the same type or the same count of numbers, or when one of them
    /// is a string or a name: then by text. A list converts to a single value by its first one. Numbers that
    /// the type cannot hold become its nearest one, fractions are cut off, and what is no number becomes 0.
    bool canConvertFrom(const SoField& other) const;

    /// Fetches the connected value if there is a newer one.
    void evaluate() const
    {
        if (m_needsEvaluation)
            fetch();
    }
    bool needsEvaluation() const { return m_needsEvaluation; }

    /// Notifies listeners as if the value had been written.
    void touch();
    /// Grows with every change; a cache made from this field compares it.
    std::uint32_t getChangeCount() const { return m_changeCount; }

    /// For sensors. The field calls its listeners with every change and when it is destroyed.
    void addListener(SoChangeListener* listener);
    void removeListener(SoChangeListener* listener);
    /// For sensors that keep a pointer to the field that triggered them: its end is then reported to their
    /// level.
    void markAsTrigger() { m_isTrigger = true; }

protected:
    /// `name` must outlive the field; the fields of a class pass a literal.
    explicit SoField(SoFieldContainer* owner = nullptr, const char* name = nullptr);

    /// Before the value is written, as SoWriteRecorder::aboutToWrite() has it. Whatever writes a value of its
    /// own calls this first and valueWritten() afterwards; else the write cannot be undone.
    void aboutToWrite(int start = 0, int removed = -1)
    {
        if (SoWriteRecorder* recorder = SoWriteRecorder::getActive())
            recorder->aboutToWrite(*this, start, removed);
    }
    /// After the value was written: marks it and notifies listeners. A multi-value field names the elements.
    void valueWritten(int start = 0, int count = -1);

    /// Takes the value from text without notifying; text that does not parse: false, and the value
    /// stays.
    virtual bool parse(std::string_view text) = 0;
    /// Takes the value of a field of exactly this class, without notifying.
    virtual void assign(const SoField& sameType) = 0;

    // --- What conversions are made of. None of these evaluates or notifies.
    virtual bool isList() const = 0;
    virtual int valueCount() const = 0;
    /// Values that are numbers in a row, such as a vector's, convert number by number; 0 for other values.
    virtual int numbersPerValue() const { return 0; }
    virtual double number(int /*value*/, int /*which*/) const { return 0; }
    virtual void takeNumbers(const SoField& /*sameShape*/) {}
    /// Strings and names convert from and to text.
    virtual bool isTextual() const { return false; }
    /// One value as a string field would hold it, without quotes.
    virtual void writePlain(std::string& out, int value) const = 0;
    /// The texts, one per value, as values; false, without a change, where one does not parse.
    virtual bool assignFromText(const std::vector<std::string>& texts) = 0;
    /// Takes the value of a field of another class whose values have the same C++ type.
    virtual bool takeSameValues(const SoField& /*other*/) { return false; }
    virtual bool hasSameValues(const SoField& /*other*/) const { return false; }
    static int countOf(const SoField& field) { return field.valueCount(); }
    static double numberOf(const SoField& field, int value, int which) { return field.number(value, which); }

private:
    friend class SoFieldData;
    friend class SoFieldContainer;
    struct Listeners {
        std::vector<SoChangeListener*> sensors;
        std::vector<SoField*> dependents;
    };

    enum class Dependents { Hear, DoNot };
    void fetch() const;
    bool take(const SoField& other);
    bool takeText(const SoField& other);
    bool isSourceOf(const SoField& other) const;
    void notify(int start, int count, Dependents dependents);
    void notifyDependents();
    void notifyOwnListeners(int start, int count);
    void leaveSource();
    void releaseDependents();
    Listeners& listeners();

    SoFieldContainer* m_container = nullptr;
    const char* m_name = nullptr;
    SoField* m_next = nullptr; // in the container
    SoField* m_source = nullptr;
    std::unique_ptr<Listeners> m_listeners;
    std::uint32_t m_changeCount = 0;
    bool m_isTrigger = false; // of a sensor, at some time
    bool m_ignored = false;
    bool m_default = true;
    mutable bool m_needsEvaluation = false;
    std::uint32_t m_dependentSlot = 0; // among the source's dependents
    std::uint32_t m_index = 0;         // in the container, once that has an index of its fields
};

extern template class SoTyped<SoField, SoTypedObject>;
