// What the deep choice remembers of the positions it has judged.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

// Values by a random code of 64 bits and by what else they depend on, their kind. A row fills one
// line of the processor's cache, for which a search waits longest. A full row forgets, and mixes up
// codes that agree in 32 bits more: one value in some of the longest searches.
class ValueMemory {
public:
    static constexpr int SlotsPerRow = 8;
    static constexpr int MostRowBits = 19;
    static constexpr long MostValues = long{SlotsPerRow} << MostRowBits;

    // Forgets everything, and makes room for positions of so many runs.
    void Clear(int runs) { Rows.assign(1U << std::clamp(runs - 4, 4, MostRowBits), {}); }

    // Lets the processor bring what will be asked for soon.
    void Fetch(std::uint64_t code) const { __builtin_prefetch(&Rows[PlaceOf(code)]); }

    // The value stored under `code` and `kind`, or none.
    const float* Find(std::uint64_t code, std::uint32_t kind) const {
        for (const Slot& slot : Rows[PlaceOf(code)].Slots)
            if (slot.Check == CheckOf(code, kind))
                return &slot.Value;
        return nullptr;
    }

    void Store(std::uint64_t code, std::uint32_t kind, double value) {
        auto& slots = Rows[PlaceOf(code)].Slots;
        std::size_t free = 0;
        while (free < SlotsPerRow && slots.at(free).Check != 0)
            ++free;
        slots.at(free % SlotsPerRow) = {CheckOf(code, kind), static_cast<float>(value)};
    }

private:
    struct Slot {
        std::uint32_t Check = 0; // 0 = free
        float Value = 0;
    };
    struct alignas(SlotsPerRow * sizeof(Slot)) Row {
        std::array<Slot, SlotsPerRow> Slots;
    };

    std::size_t PlaceOf(std::uint64_t code) const {
        return static_cast<std::size_t>(code) & (Rows.size() - 1);
    }

    static std::uint32_t CheckOf(std::uint64_t code, std::uint32_t kind) {
        return static_cast<std::uint32_t>(code >> 32U) ^ (0x9E3779B1U * kind);
    }

    std::vector<Row> Rows;
};
