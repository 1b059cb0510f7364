// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxVersion.h>

#include <QtGlobal>

#include <cstddef>
#include <cstdint>
#include <string>

/// What a plug-in library says about itself in an ELF note, which the host reads from the file before any
/// code of the library runs. A plug-in states it in one of its sources, at namespace scope:
///
///     #include <scopix/SpxPluginNote.h>
///     SPX_PLUGIN_NOTE("LightAim", "1.0.0")
///
/// with string literals for the plug-in's name and its own version. The host then refuses a plug-in that was
/// made for another version of the contract, for another Qt or for another C++ library in a clear sentence,
/// where loading it would crash. The note needs no symbol, so a plug-in exports its two entry points only.
///
/// The text is a line "key=value" for each property. It is text and not a struct so that any version of the
/// host can read the note of any other, and so can you: readelf -p .note.scopix FILE.
template <std::size_t Size>
struct SpxPluginNote {
    std::uint32_t ownerSize;
    std::uint32_t textSize;
    std::uint32_t type; // 1, the only one so far
    char owner[8];
    char text[Size];
};

// The C++ library decides how strings and containers of the contract look in memory.
#if defined _LIBCPP_VERSION
#define SPX_CXX_LIBRARY "libc++"
#elif defined _GLIBCXX_USE_CXX11_ABI && _GLIBCXX_USE_CXX11_ABI
#define SPX_CXX_LIBRARY "libstdc++"
#else
#define SPX_CXX_LIBRARY "libstdc++ with its strings from before C++11"
#endif

// Neither the compiler nor the linker may drop it for want of a user, and no sanitizer may pad it.
#if defined __clang__
#define SPX_PLUGIN_NOTE_KEPT retain, no_sanitize("address")
#elif __has_attribute(retain)
#define SPX_PLUGIN_NOTE_KEPT retain
#else
#define SPX_PLUGIN_NOTE_KEPT
#endif
#define SPX_PLUGIN_NOTE_SECTION                                                                              \
    __attribute__((section(".note.scopix"), aligned(4), used, SPX_PLUGIN_NOTE_KEPT))

#define SPX_PLUGIN_NOTE_TEXT(name, version)                                                                  \
    "name=" name "\n"                                                                                        \
    "version=" version "\n"                                                                                  \
    "contract=" SPX_CONTRACT_VERSION "\n"                                                                    \
    "scopix=" SPX_SCOPIX_VERSION "\n"                                                                        \
    "qt=" QT_VERSION_STR "\n"                                                                                \
    "cxx=" SPX_CXX_LIBRARY "\n"

#define SPX_PLUGIN_NOTE_OF(text)                                                                             \
    SPX_PLUGIN_NOTE_SECTION static constexpr SpxPluginNote<sizeof(text)> s_spxPluginNote = {                 \
        sizeof("Scopix"), sizeof(text), 1, "Scopix", text};

#define SPX_PLUGIN_NOTE(name, version) SPX_PLUGIN_NOTE_OF(SPX_PLUGIN_NOTE_TEXT(name, version))
