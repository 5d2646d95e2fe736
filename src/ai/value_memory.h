// What the deep choice remembers of the positions it has judged.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

// What is known of a value: it lies between the two.
struct Bounds {
    int Low = std::numeric_limits<int>::min();
    int High = std::numeric_limits<int>::max();
};

// Bounds by a random code of 64 bits and by what else they depend on, their kind. A row fills one
// line of the processor's cache, for which a search waits longest. A full row forgets.
class ValueMemory {
public:
    static constexpr int MostRowBits = 19; // 32 MB

    // Forgets everything, and makes room for positions of so many runs.
    void Clear(int runs) {
        Rows.assign(std::size_t{1} << std::clamp(runs - 4, 4, MostRowBits), {});
    }

    // Lets the processor bring what will be asked for soon.
    void Fetch(std::uint64_t code) const { __builtin_prefetch(&Rows[PlaceOf(code)]); }

    // The place of what is known, good until the next call. A new one says nothing.
    Bounds& At(std::uint64_t code, std::uint32_t kind) {
        Row& row = Rows[PlaceOf(code)];
        const std::uint64_t own = code ^ (0x9E3779B97F4A7C15U * kind);
        auto* slot = std::ranges::find_if(
            row, [own](const Slot& s) { return s.Code == own || s.Code == 0; });
        if (slot == row.end())
            slot = row.begin();
        if (slot->Code != own)
            *slot = {own, {}};
        return slot->Known;
    }

private:
    struct Slot {
        std::uint64_t Code = 0; // 0 = free
        Bounds Known;
    };
    struct alignas(4 * sizeof(Slot)) Row : std::array<Slot, 4> {};

    std::size_t PlaceOf(std::uint64_t code) const {
        return static_cast<std::size_t>(code) & (Rows.size() - 1);
    }

    std::vector<Row> Rows;
};
