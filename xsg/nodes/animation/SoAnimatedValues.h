// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/core/SoWriteRecorder.h>

#include <memory>
#include <unordered_map>

namespace xsg
{
class Context;
} // namespace xsg

/// Which fields animations hold at present, and what these fields hold at rest: the values that scene files
/// and comparisons take, and that are given back when an animation stops. Nothing that is written through
/// this is recorded. A field that somebody else writes belongs to its animation no more, and what was written
/// is its value at rest. Belongs to the graph's thread.
class XSG_API SoAnimatedValues
{
public:
    static SoAnimatedValues& getInstance();
    SoAnimatedValues(const SoAnimatedValues&) = delete;
    SoAnimatedValues& operator=(const SoAnimatedValues&) = delete;

    bool isAnimated(const SoField& field) const { return find(field) != nullptr; }
    /// The field itself where it is not animated; else one that stands alone and has the value at rest.
    const SoField& getRest(const SoField& field) const;
    /// Ends the animation of the field, which gets its value at rest; nothing for others.
    void giveBack(const SoField& field);

    /// While one of these lives, what is written is no edit.
    class XSG_API Writing
    {
    public:
        Writing();
        ~Writing();
        Writing(const Writing&) = delete;
        Writing& operator=(const Writing&) = delete;

    private:
        SoWriteRecorder* m_recorder;
    };
    /// Valid where changes are reported: an animation makes this one.
    bool isWriting() const { return m_writing > 0; }

    // --- For animations. `owner` is one of them; it must not outlive its fields here.
    /// Takes the field, from another animation too. False for a field of no node, one that follows another
    /// field, and one whose value cannot be kept.
    bool take(SoField& field, const SoFieldContainer* owner);
    bool isOwner(const SoField& field, const SoFieldContainer* owner) const;
    /// Calls write() where the field is the owner's, as an animation's; else false.
    template <class Write>
    bool write(SoField& field, const SoFieldContainer* owner, Write write)
    {
        if (!isOwner(field, owner))
            return false;
        const Writing writing;
        write();
        written(field);
        return true;
    }
    void giveBack(const SoField& field, const SoFieldContainer* owner);
    /// For fields that are being destroyed with their animation.
    void forget(const SoField& field) { m_held.erase(&field); }

private:
    friend class xsg::Context;
    SoAnimatedValues() = default;

    struct Held {
        SoRef<SoFieldContainer> node; // null for the animation itself
        SoField* field = nullptr;
        std::unique_ptr<SoField> rest;
        const SoFieldContainer* owner = nullptr;
        std::uint32_t changeCount = 0; // after the animation's last write: it grows when others write
        bool isDefault = false;
    };
    const Held* find(const SoField& field) const;
    void written(SoField& field);

    std::unordered_map<const SoField*, Held> m_held;
    int m_writing = 0;
};
