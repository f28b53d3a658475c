#include "rom_WrittenRows.h"

namespace
{
constexpr int firstSizeBits = 6;
} // namespace

rom_WrittenRows::rom_WrittenRows() : entries(std::size_t{1} << firstSizeBits), shift(64 - firstSizeBits) {}

std::uint64_t rom_WrittenRows::OwnHash(const cls_Uid& uid, const void* address)
{
    return ((uid.GroupHash() + uid.PlaceInGroup()) ^ reinterpret_cast<std::uintptr_t>(address)) *
           0x9FB21C651E98DF25u;
}

// The first object of an identity stands where the identity leads; any other where identity and address lead
// together, so that many objects of one identity do not stand in one line.

rom_WrittenRows::Finding rom_WrittenRows::FindOrEnter(const cls_Uid& uid, const void* address, Row& row)
{
    const std::size_t mask = entries.size() - 1;
    bool isTaken = false;
    for (std::size_t place = Place(uid); entries[place].address; place = (place + 1) & mask)
    {
        const Entry& entry = entries[place];
        if (entry.uid != uid)
            continue;
        if (entry.address == address)
        {
            row = entry.row;
            return Finding::Written;
        }
        isTaken = true;
        break;
    }
    if (isTaken)
    {
        for (std::size_t place = Place(OwnHash(uid, address)); entries[place].address;
             place = (place + 1) & mask)
        {
            if (entries[place].address == address && entries[place].uid == uid)
            {
                row = entries[place].row;
                return Finding::Written;
            }
        }
    }
    if ((count + 1) * 5 > entries.size() * 4)
        Grow();
    Enter({uid, address, row});
    return isTaken ? Finding::OtherOne : Finding::FirstOne;
}

void rom_WrittenRows::Enter(const Entry& entry)
{
    const std::size_t mask = entries.size() - 1;
    std::size_t place = Place(entry.uid);
    while (entries[place].address && entries[place].uid != entry.uid)
        place = (place + 1) & mask;
    if (entries[place].address)
    {
        place = Place(OwnHash(entry.uid, entry.address));
        while (entries[place].address)
            place = (place + 1) & mask;
    }
    entries[place] = entry;
    ++count;
}

void rom_WrittenRows::Grow()
{
    std::vector<Entry> old(entries.size() * 2);
    old.swap(entries);
    --shift;
    count = 0;
    for (const Entry& entry : old)
    {
        if (entry.address)
            Enter(entry);
    }
}
