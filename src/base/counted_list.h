// A list with a fixed capacity whose entries count from 1: the working lists of the game.
#pragma once

#include <stdexcept>
#include <vector>

#include "base/integer.h"

template <class Entry>
class CountedList {
public:
    // The count that marks a closed loop of boxes; such a list holds no entries.
    static constexpr Integer ClosedLoop = -1;

    // Empties the list and makes room for `capacity` entries.
    void Resize(int capacity) {
        Entries.assign(static_cast<std::size_t>(capacity), Entry{});
        Clear();
    }

    Integer Count() const { return EntryCount; }
    void Clear() { EntryCount = 0; }
    void MarkClosedLoop() { EntryCount = ClosedLoop; }

    // Drops the entries behind the first `count`.
    void Shorten(Integer count) {
        if (count < 0 || count > EntryCount)
            throw std::out_of_range("a list was shortened to a length that it does not have");
        EntryCount = count;
    }

    // The entry at `position`, 1 to Count().
    Entry& at(int position) { return Entries.at(CheckedIndex(position)); }
    const Entry& at(int position) const { return Entries.at(CheckedIndex(position)); }
    const Entry& Last() const { return at(EntryCount); }

    void Append(const Entry& entry) {
        Entries.at(static_cast<std::size_t>(EntryCount)) = entry;
        Increase(EntryCount, 1);
    }

    // Appends all entries of `other`; a closed loop has none.
    void Append(const CountedList& other) {
        for (const Entry& entry : other)
            Append(entry);
    }

    auto begin() { return Entries.begin(); }
    auto end() { return Entries.begin() + (EntryCount > 0 ? EntryCount : 0); }
    auto begin() const { return Entries.begin(); }
    auto end() const { return Entries.begin() + (EntryCount > 0 ? EntryCount : 0); }

private:
    std::size_t CheckedIndex(int position) const {
        if (position < 1 || position > EntryCount)
            throw std::out_of_range("a list has no entry of that number");
        return static_cast<std::size_t>(position) - 1;
    }

    std::vector<Entry> Entries;
    Integer EntryCount = 0;
};
