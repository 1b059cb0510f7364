// Boxes around runs of neighbours, so that most of a long list is judged by a few of them.
#pragma once

#include <xsg/base/SbBox.h>

#include <algorithm>
#include <vector>

namespace xsg
{

class ChunkBoxes
{
public:
    static constexpr std::size_t Size = 64; // neighbours in a run

    // `boxOf(i)` gives the box of each of `count`.
    template <class BoxOf>
    void build(std::size_t count, const BoxOf& boxOf)
    {
        m_count = count;
        m_boxes.resize((count + Size - 1) / Size);
        for (std::size_t chunk = 0; chunk < m_boxes.size(); ++chunk)
            refresh(chunk, boxOf);
    }
    // The run that a place lies in, after its box has changed.
    static std::size_t chunkOf(std::size_t place) { return place / Size; }
    template <class BoxOf>
    void refresh(std::size_t chunk, const BoxOf& boxOf)
    {
        SbBox3f& box = m_boxes[chunk] = {};
        for (std::size_t i = chunk * Size; i < endOf(chunk); ++i)
            box.extendBy(boxOf(i));
    }

    std::size_t getNumChunks() const { return m_boxes.size(); }
    const SbBox3f& getBox(std::size_t chunk) const { return m_boxes[chunk]; }
    std::size_t endOf(std::size_t chunk) const { return std::min(m_count, (chunk + 1) * Size); }
    SbBox3f getWhole() const
    {
        SbBox3f whole;
        for (const SbBox3f& box : m_boxes)
            whole.extendBy(box);
        return whole;
    }

private:
    std::vector<SbBox3f> m_boxes;
    std::size_t m_count = 0;
};

} // namespace xsg
