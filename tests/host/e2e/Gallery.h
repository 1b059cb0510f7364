// SPDX-License-Identifier: MIT
#pragma once

#include <support/SoFieldGallery.h>

#include <support/Session.h>

#include <string>
#include <vector>

/// The field gallery in a session: what its fields hold, and whether undoing brings all of it back.
class GallerySession : public Session
{
public:
    /// What undo has to restore, to the last byte.
    struct State {
        std::string text;
        bool ignored;
        bool isDefault;
        bool operator==(const State& other) const
        {
            return text == other.text && ignored == other.ignored && isDefault == other.isDefault;
        }
        friend void PrintTo(const State& state, std::ostream* out)
        {
            *out << state.text << (state.ignored ? " ignored" : "") << (state.isDefault ? " default" : "");
        }
    };

    template <class Kind>
    std::vector<Kind*> fields() const
    {
        std::vector<Kind*> found;
        const SoFieldData* data = gallery->getFieldData();
        for (int i = 0; SoField* field = data->getField(gallery.get(), i); ++i) {
            if (auto* wanted = dynamic_cast<Kind*>(field))
                found.push_back(wanted);
        }
        return found;
    }
    static std::string textOf(const SoField* field)
    {
        SbString text;
        field->get(text);
        return text.str();
    }
    static std::string typeOf(const SoField* field) { return field->getTypeId().getName().getString(); }
    std::vector<State> states() const
    {
        std::vector<State> all;
        for (const SoField* field : fields<SoField>())
            all.push_back({textOf(field), field->isIgnored(), field->isDefault()});
        return all;
    }

    void undoAll()
    {
        while (stack().canUndo())
            stack().undo();
        settle();
    }
    void redoAll()
    {
        while (stack().canRedo())
            stack().redo();
        settle();
    }
    /// Everything edited so far is undone, redone and undone again.
    void expectUndone(const std::vector<State>& before)
    {
        const std::vector<State> after = states();
        EXPECT_NE(after, before);
        undoAll();
        EXPECT_EQ(states(), before);
        redoAll();
        EXPECT_EQ(states(), after);
        undoAll();
        EXPECT_EQ(states(), before);
    }

    SoRef<SoFieldGallery> gallery{new SoFieldGallery};
};
