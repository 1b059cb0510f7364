// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/values/LiveExport.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace scopix::live
{

/// What one element of a property is made of. The numbers are part of the protocol: they never change, new
/// ones are added at the end.
///
/// Units are those of the program; angles of `Rotation` are in its quaternion (x, y, z, w).
enum class ValueKind : std::uint8_t {
    None = 0,
    Bool = 1,  // one byte, 0 or 1
    Int32 = 2, // also enumerations and bit masks: see PropertyInfo::meaning
    UInt32 = 3,
    Int64 = 4,
    Float = 5,
    Double = 6,
    Vec2f = 7,
    Vec3f = 8,
    Vec4f = 9,
    Vec2d = 10,
    Vec3d = 11,
    Vec4d = 12,
    Rotation = 13, // 4 double, a unit quaternion (x, y, z, w)
    Matrix = 14,   // 16 double, row by row; points are row vectors, as in xsg and OpenSceneGraph
    Color = 15,    // 4 float, red, green, blue, alpha, as the program keeps them
    Time = 16,     // double, seconds
    Plane = 17,    // 4 double, normal and distance
    String = 18,   // length (u32) and UTF-8
    Image = 19,    // width, height, components (u32 each), then the bytes, bottom row first
    Object = 20,   // NodeId of a node or of another object that has properties; 0 is none
    Text = 21,     // as String, of a property that has no kind here: it is only shown
    Box = 22,      // 6 double, the least and the greatest corner
    Vec2s = 23,    // 2 int16
    UShort = 24,   // also Int16: see Short
    Short = 25,
    Vec3s = 26,
    Vec4ub = 27, // 4 bytes
    Vec2i = 28   // 2 int32
};

/// Bytes of one element, 0 where elements have no fixed size (String, Text, Image).
SCOPIX_LIVE_API std::size_t elementSize(ValueKind kind) noexcept;

/// One value or a list of them, packed without gaps in the byte order of the machine: both ends run on the
/// same one.
///
/// Copyable; a value of its own, safe to hand to another thread.
struct SCOPIX_LIVE_API Value {
    ValueKind kind = ValueKind::None;
    bool list = false;
    std::vector<std::uint8_t> bytes;

    /// Number of elements; 1 for a value that is no list.
    std::size_t count() const noexcept;

    friend bool operator==(const Value& a, const Value& b) noexcept
    {
        return a.kind == b.kind && a.list == b.list && a.bytes == b.bytes;
    }
    friend bool operator!=(const Value& a, const Value& b) noexcept { return !(a == b); }
};

/// Whether the bytes are what the kind says: whole elements, one of them where it is no list, texts and
/// pictures that end where the bytes do. The server lets no other value reach an adapter.
SCOPIX_LIVE_API bool isWellFormed(const Value& value) noexcept;

} // namespace scopix::live
