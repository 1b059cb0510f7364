// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoFieldData.h>
#include <xsg/core/SoNotification.h>
#include <xsg/types/SoTyped.h>

#include <memory>
#include <utility>
#include <vector>

class SoField;
namespace xsg
{
class ChangeListener;
} // namespace xsg

/// Something that has fields: a node, or another object with tunable values. Reference-counted: new ones
/// start at 0 and are destroyed with the last reference. Belongs to the graph's thread.
class XSG_API SoFieldContainer : public SoTyped<SoFieldContainer, SoTypedObject>
{
public:
    static constexpr const char* ClassName = "FieldContainer";

    SoFieldContainer(const SoFieldContainer&) = delete;
    SoFieldContainer& operator=(const SoFieldContainer&) = delete;

    void ref() const { ++m_refCount; }
    void unref() const;
    /// Gives a reference back without ever deleting, to hand an object on.
    void unrefNoDelete() const { --m_refCount; }
    int getRefCount() const { return m_refCount; }
    /// True once the last reference is given back: nobody may write the fields any more.
    bool isBeingDestroyed() const { return m_dying; }

    SbName getName() const { return m_name; }
    void setName(SbName name);
    /// The living container of this name, the one named last where there are several, or null.
    static SoFieldContainer* getByName(SbName name);
    /// A text by which getByName() finds this very container while it lives: the name or, where there is none
    /// or another one was given it later, the type with a number, such as "Sphere#12".
    SbName getReferenceName() const;

    const SoFieldData* getFieldData() const { return &m_fields; }
    /// The field of this name, or null.
    SoField* getField(SbName name) const;

    /// Grows whenever a field of this very container changes, before any listener is called; a cache made
    /// from the fields compares it.
    std::uint32_t getFieldChangeCount() const { return m_fieldChangeCount; }

    /// Called by fields and children; notifies every listener.
    virtual void notify(const SoNotification& change);

    /// For sensors. The container calls its listeners with every change and when it is destroyed.
    void addListener(xsg::ChangeListener* listener);
    void removeListener(xsg::ChangeListener* listener);

    /// `callback` is called for every container right before it is destroyed, while its fields still exist.
    using DyingCallback = void (*)(void* data, SoFieldContainer* dying);
    static void addDyingCallback(DyingCallback callback, void* data);
    static void removeDyingCallback(DyingCallback callback, void* data);

protected:
    SoFieldContainer() = default;
    ~SoFieldContainer() override;
    bool hasSensors() const { return m_sensors && !m_sensors->empty(); }
    static std::uint64_t nextSerial();

private:
    friend class SoField;
    friend class SoFieldData;
    void destroy() const;
    void finalize() const;

    SoFieldData m_fields;
    std::unique_ptr<std::vector<xsg::ChangeListener*>> m_sensors;
    SbName m_name;
    std::uint32_t m_fieldChangeCount = 0;
    mutable int m_refCount = 0;
    mutable bool m_dying = false;
    mutable bool m_listed = false; // among the names
};

extern template class SoTyped<SoFieldContainer, SoTypedObject>;

/// Holds one reference; the smallest thing that keeps a node alive.
template <class T>
class XSG_API SoRef
{
public:
    SoRef() = default;
    SoRef(T* object) // NOLINT(google-explicit-constructor)
        : m_object(object)
    {
        if (m_object)
            m_object->ref();
    }
    SoRef(const SoRef& other)
        : SoRef(other.m_object)
    {
    }
    SoRef(SoRef&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {
    }
    SoRef& operator=(SoRef other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~SoRef()
    {
        if (m_object)
            m_object->unref();
    }
    T* get() const { return m_object; }
    /// Gives the reference back without ever deleting, and becomes null: hands a new object on with no
    /// references.
    [[nodiscard]] T* release() noexcept
    {
        if (m_object)
            m_object->unrefNoDelete();
        return std::exchange(m_object, nullptr);
    }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    friend bool operator==(const SoRef& a, const SoRef& b) { return a.m_object == b.m_object; }
    friend bool operator!=(const SoRef& a, const SoRef& b) { return a.m_object != b.m_object; }

private:
    T* m_object = nullptr;
};
