// A value of a node: readable and writable as text, watched by sensors, and able to follow another field.
// A field with an owner belongs to it; one without stands alone. Belongs to the graph's thread.
#pragma once

#include <xsg/base/SbName.h>
#include <xsg/base/SbString.h>
#include <xsg/core/SoTyped.h>

#include <cstdint>
#include <memory>
#include <vector>

class SoDataSensor;
class SoFieldContainer;

class XSG_API SoField : public SoTyped<SoField, SoTypedObject>
{
public:
    static constexpr const char* ClassName = "Field";

    SoField(const SoField&) = delete;
    SoField& operator=(const SoField&) = delete;
    ~SoField() override;

    // The value as text that set() reads back to the same bits; evaluates first; never an empty text.
    virtual void get(SbString& text) const = 0;
    // Takes a value from text. Text that does not parse: false, the value stays and nobody is notified.
    // A write notifies even when the value is the same.
    virtual bool set(const SbString& text) = 0;
    // True when both have the same type and value.
    virtual bool isSame(const SoField& other) const = 0;
    // Takes over the value of a field of the same or a convertible type; false where there is no conversion.
    bool copyFrom(const SoField& other);

    bool isIgnored() const { return m_ignored; }
    void setIgnored(bool ignored);
    // True until the value is written.
    bool isDefault() const { return m_default; }
    void setDefault(bool isDefault) { m_default = isDefault; }

    // Null for a field that stands alone.
    SoFieldContainer* getContainer() const { return m_container; }
    SbName getName() const { return m_name ? SbName(m_name) : SbName(); }

    // Follows `master`: whenever it changes, this field takes its value when next read. Refused (false) where
    // the types do not convert or a loop would close. A direct write stands until the master changes again.
    bool connectFrom(SoField* master);
    void disconnect();
    SoField* getConnectedField() const { return m_master; }
    bool isConnected() const { return m_master != nullptr; }
    bool canConvertFrom(const SoField& other) const;

    // Fetches the connected value if there is a newer one.
    void evaluate() const
    {
        if (m_needsEvaluation)
            fetch();
    }
    bool needsEvaluation() const { return m_needsEvaluation; }

    // Tells listeners as if the value had been written.
    void touch();
    // Grows with every change; a cache made from this field compares it.
    std::uint32_t getChangeCount() const { return m_changeCount; }

protected:
    // `name` must outlive the field; the fields of a class pass a literal.
    explicit SoField(SoFieldContainer* owner = nullptr, const char* name = nullptr);

    // After the value was written: marks it and tells listeners. A multi-value field names the elements.
    void valueWritten(int start = 0, int count = -1);
    // Takes the value of a field of exactly this class, without telling anybody.
    virtual void assign(const SoField& sameType) = 0;
    // Says whether assignConverted() can work for this pair of types.
    virtual bool converts(const SoField& other) const;
    virtual void assignConverted(const SoField& other);

private:
    friend class SoFieldData;
    friend class SoDataSensor;
    struct Listeners {
        std::vector<SoDataSensor*> sensors;
        std::vector<SoField*> followers;
    };

    void fetch() const;
    void take(const SoField& other);
    void notify(int start, int count);
    Listeners& listeners();

    SoFieldContainer* m_container = nullptr;
    const char* m_name = nullptr;
    SoField* m_next = nullptr; // in the container
    SoField* m_master = nullptr;
    std::unique_ptr<Listeners> m_listeners;
    std::uint32_t m_changeCount = 0;
    bool m_ignored = false;
    bool m_default = true;
    mutable bool m_needsEvaluation = false;
};

extern template class SoTyped<SoField, SoTypedObject>;
