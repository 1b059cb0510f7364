// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbString.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A list as a test thinks of it: the texts of its elements, and the edits that can be taken back. Knows of
/// the field's type only how one element is written.
class ListModel
{
public:
    using Texts = std::vector<std::string>;
    /// The text as the type writes it, or nothing where the type refuses it.
    using Normalise = std::function<std::optional<std::string>(const std::string&)>;

    ListModel(std::string fresh, Normalise normalise)
        : m_fresh(std::move(fresh))
        , m_normalise(std::move(normalise))
    {
    }

    const Texts& elements() const { return m_elements; }
    int count() const { return int(m_elements.size()); }
    /// Empty outside.
    std::string at(int index) const
    {
        return index < count() ? m_elements[std::size_t(index)] : std::string();
    }

    /// What happens elsewhere: nothing of it can be taken back.
    void insert(int start, int howMany)
    {
        m_elements.insert(m_elements.begin() + std::min(start, count()), std::size_t(howMany), m_fresh);
    }
    void remove(int start, int howMany)
    {
        const int first = std::min(start, count());
        m_elements.erase(m_elements.begin() + first, m_elements.begin() + std::min(first + howMany, count()));
    }
    void resize(int count) { m_elements.resize(std::size_t(count), m_fresh); }
    bool write(int index, const std::string& text)
    {
        const std::optional<std::string> written = m_normalise(text);
        if (!written)
            return false;
        if (index >= count())
            resize(index + 1);
        m_elements[std::size_t(index)] = *written;
        return true;
    }

    /// Edits.
    void addRow(int row)
    {
        record([this, row] { insert(row, 1), write(row, "\"\""); }, [this, row] { remove(row, 1); });
    }
    void deleteRows(int first, int howMany)
    {
        const Texts gone(m_elements.begin() + first, m_elements.begin() + first + howMany);
        const auto bringBack = [this, first, gone] {
            insert(first, int(gone.size()));
            for (std::size_t i = 0; i < gone.size(); ++i)
                write(first + int(i), gone[i]);
        };
        record([this, first, howMany] { remove(first, howMany); }, bringBack);
    }
    void swapRows(int row1, int row2)
    {
        const auto swap = [this, row1, row2] {
            const std::string first = at(row1);
            const std::string second = at(row2);
            write(row1, second);
            write(row2, first);
        };
        record(swap, swap);
    }
    void edit(int row, const std::string& text)
    {
        record([this, row, text] { write(row, text); },
               [this, row, before = at(row)] { write(row, before); });
    }

    int undoCount() const { return int(m_done); }
    void undo()
    {
        if (m_done > 0)
            m_steps[--m_done].undo();
    }
    void redo()
    {
        if (m_done < m_steps.size())
            m_steps[m_done++].redo();
    }
    void clearUndo()
    {
        m_steps.clear();
        m_done = 0;
    }

private:
    struct Step {
        std::function<void()> redo;
        std::function<void()> undo;
    };
    void record(std::function<void()> redo, std::function<void()> undo)
    {
        redo();
        m_steps.resize(m_done);
        m_steps.push_back({std::move(redo), std::move(undo)});
        ++m_done;
    }

    std::string m_fresh;
    Normalise m_normalise;
    Texts m_elements;
    std::vector<Step> m_steps;
    std::size_t m_done = 0;
};
