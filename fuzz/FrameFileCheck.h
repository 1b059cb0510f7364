// SPDX-License-Identifier: MIT
#pragma once

#include "Check.h"

#include <xsg/frames/SoFrameCsv.h>
#include <xsg/frames/SoFrameFile.h>

#include <algorithm>
#include <string_view>

namespace fuzz
{

/// A recording of frames, or a table of them, is refused with a reason, or what was read is read again once
/// it was written. No mutation keeps a checksum right: the input is taken as contents of blocks too, each
/// after its size.
class FrameFileCheck
{
public:
    void operator()(const std::uint8_t* data, std::size_t size) const
    {
        const std::string_view bytes(reinterpret_cast<const char*>(data), size);
        checkRecording(bytes);
        checkRecording(blocksOf(bytes));
        checkTable(bytes);
    }

private:
    static std::string blocksOf(std::string_view pieces)
    {
        std::string file = "#Xsg frames V1\n";
        while (!pieces.empty()) {
            const auto size =
                std::min<std::size_t>(static_cast<unsigned char>(pieces.front()) & 0x7FU, pieces.size() - 1);
            const std::string_view block = pieces.substr(1, size);
            file += static_cast<char>(size);
            file += block;
            std::uint32_t sum = 2166136261U;
            for (const char byte : block)
                sum = (sum ^ static_cast<unsigned char>(byte)) * 16777619U;
            for (int shift = 0; shift < 32; shift += 8)
                file += static_cast<char>(sum >> shift);
            pieces.remove_prefix(size + 1);
        }
        return file;
    }

    static void checkRecording(std::string_view bytes)
    {
        SoFrameRecording once;
        SbSentence problem;
        if (!SoFrameFile::parse(bytes, once, problem)) {
            require(!problem.empty(), "a recording is refused without a reason");
            return;
        }
        SoFrameRecording again;
        require(SoFrameFile::parse(SoFrameFile::format(once), again, problem),
                "it is not read again: " + problem.getText());
        require(again.about == once.about, "remarks change");
        require(haveSame(again.marks, once.marks,
                         [](const SoFrameMark& a, const SoFrameMark& b) {
                             return a.time == b.time && a.text == b.text;
                         }),
                "marks change");
        require(haveSame(again.columns, once.columns,
                         [](const SoFrameColumn& a, const SoFrameColumn& b) {
                             return a.name == b.name && a.unit == b.unit && a.isState == b.isState &&
                                    a.values == b.values;
                         }),
                "columns change");
        checkWritten(once);
    }

    static void checkTable(std::string_view text)
    {
        SoFrameRecording once;
        SbSentence problem;
        if (SoFrameCsv::read(text, once, problem))
            checkWritten(once);
        else
            require(!problem.empty(), "a table is refused without a reason");
    }

    static void checkWritten(const SoFrameRecording& once)
    {
        SoFrameRecording again;
        SbSentence problem;
        require(SoFrameCsv::read(SoFrameCsv::write(once), again, problem),
                "a table is not read again: " + problem.getText());
        require(haveSame(again.columns, once.columns, isSame), "a table changes");
    }

    static bool isSame(const SoFrameColumn& a, const SoFrameColumn& b)
    {
        const auto isSameValue = [&](std::int64_t x, std::int64_t y) {
            return x == y || (!a.isKnown(x) && !b.isKnown(y));
        };
        return haveSame(a.values, b.values, isSameValue);
    }

    template <class List, class Same>
    static bool haveSame(const List& a, const List& b, const Same& same)
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
    }
};

} // namespace fuzz
