#pragma once

#include "core/RunTimeError.h"

#include <array>
#include <cstddef>
#include <initializer_list>

// A fixed array addressed from 1 to N, the way the collision experiment numbers its
// bodies (1, 2), contact phases (1, 2) and graph panels (1 to 4). Any other index
// is a subscript fault (RunTimeError), never a stray memory access.
template <typename T, int N>
class CollisionArray
{
public:
    CollisionArray() : m_items{} {}

    // The items in index order, the first one at index 1.
    CollisionArray(std::initializer_list<T> items) : m_items{}
    {
        std::size_t slot = 0;
        for (const T& item : items)
            if (slot < m_items.size())
                m_items[slot++] = item;
    }

    T& operator[](int index) { return m_items[slotOf(index)]; }
    const T& operator[](int index) const { return m_items[slotOf(index)]; }

    // Writes the same value at every index.
    void fill(const T& value) { m_items.fill(value); }

    // The number of items, N.
    static constexpr int size() { return N; }

private:
    static std::size_t slotOf(int index)
    {
        if (index < 1 || index > N)
            throw RunTimeError::subscriptOutOfRange();
        return static_cast<std::size_t>(index - 1);
    }

    std::array<T, N> m_items;
};
