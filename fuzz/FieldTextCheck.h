// SPDX-License-Identifier: MIT
#pragma once

#include "Check.h"

#include <support/SoFieldGallery.h>
#include <xsg/core/SoMField.h>

#include <algorithm>

namespace fuzz
{

inline void require(bool holds, const char* what, const SoField& field)
{
    if (!holds)
        require(false, std::string(field.getName().getString()) + ": " + what);
}

inline std::string written(const SoField& field)
{
    SbString text;
    field.get(text);
    return text.str();
}

/// What must hold whatever text a field is given. The fuzzer and the test that replays its corpus share this.
///
/// Each field of one gallery reads what another wrote of it; they have the same names for their enumerations.
class FieldTextCheck
{
public:
    /// The first byte chooses the field, the second what is done with the rest.
    void operator()(const std::uint8_t* data, std::size_t size)
    {
        if (size < 2)
            return;
        const SoFieldData* fields = m_gallery->getFieldData();
        const int index = data[0] % fields->getNumFields();
        SoField& field = *fields->getField(m_gallery.get(), index);
        SoField& copy = *fields->getField(m_copy.get(), index);
        const SbString text(std::string(reinterpret_cast<const char*>(data + 2), size - 2));
        auto* list = dynamic_cast<SoMField*>(&field);
        if (list && data[1] % 2 == 1)
            set1(*list, (data[1] >> 1) % 8, text);
        else
            set(field, text);
        checkRoundTrip(field, copy);
        field.set(SbString(m_start[static_cast<std::size_t>(index)]));
    }

    FieldTextCheck()
    {
        const SoFieldData* fields = m_gallery->getFieldData();
        for (int i = 0; i < fields->getNumFields(); ++i)
            m_start.push_back(written(*fields->getField(m_gallery.get(), i)));
    }

private:
    static void set(SoField& field, const SbString& text)
    {
        const std::string before = written(field);
        const auto changes = field.getChangeCount();
        if (field.set(text))
            return;
        require(written(field) == before, "refused text changed the value", field);
        require(field.getChangeCount() == changes, "refused text reported a change", field);
    }
    static void set1(SoMField& field, int index, const SbString& text)
    {
        const std::string before = written(field);
        const auto changes = field.getChangeCount();
        const int count = field.getNum();
        if (field.set1(index, text)) {
            require(field.getNum() == std::max(count, index + 1), "a value was written beside its place",
                    field);
            return;
        }
        require(written(field) == before, "a refused value changed the list", field);
        require(field.getChangeCount() == changes, "a refused value reported a change", field);
    }
    static void checkRoundTrip(const SoField& field, SoField& copy)
    {
        const std::string text = written(field);
        require(!text.empty(), "its text is empty", field);
        require(copy.set(SbString(text)), "it does not read what it wrote", field);
        require(written(copy) == text, "its text changes when read and written", field);
        require(copy.isSame(field), "its value changes when written and read", field);
    }

    SoRef<SoFieldGallery> m_gallery{new SoFieldGallery};
    SoRef<SoFieldGallery> m_copy{new SoFieldGallery};
    std::vector<std::string> m_start;
};

} // namespace fuzz
