// What the deep choice remembers of the positions it has judged.
#pragma once

#include <cstdint>
#include <vector>

// Values by a random 64-bit code; two positions of one code would be taken for the same.
class ValueMemory {
public:
    ValueMemory() : Slots(SmallestSize) {}

    // The value stored under `code`, or none.
    const double* Find(std::uint64_t code) const {
        const Slot& slot = Slots.at(PlaceOf(code));
        return slot.Code != Unused ? &slot.Value : nullptr;
    }

    // Stores the value of a code that is not there yet.
    void Store(std::uint64_t code, double value) {
        if (2 * ++Count > Slots.size())
            Grow();
        Slots.at(PlaceOf(code)) = {code, value};
    }

private:
    static constexpr std::size_t SmallestSize = 1U << 12U; // a power of two

    static constexpr std::uint64_t Unused = 0; // a value of this code is not found again

    struct Slot {
        std::uint64_t Code = Unused;
        double Value = 0;
    };

    std::size_t PlaceOf(std::uint64_t code) const {
        std::size_t place = code & (Slots.size() - 1);
        while (Slots.at(place).Code != Unused && Slots.at(place).Code != code)
            place = (place + 1) & (Slots.size() - 1);
        return place;
    }

    void Grow() {
        std::vector<Slot> old(2 * Slots.size());
        old.swap(Slots);
        for (const Slot& slot : old)
            if (slot.Code != Unused)
                Slots.at(PlaceOf(slot.Code)) = slot;
    }

    std::vector<Slot> Slots;
    std::size_t Count = 0;
};
