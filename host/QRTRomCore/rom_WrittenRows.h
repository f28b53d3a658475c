#pragma once

#include "cls_Uid.h"
#include "ovr_Export.h"

#include <cstdint>
#include <vector>

/// What a save has written so far: objects by identity and address. Two objects may carry one identity; the
/// first of them keeps it.
class OVR_EXPORT rom_WrittenRows
{
public:
    struct Row
    {
        unsigned classId;
        std::uint32_t oid;
    };

    enum class Finding
    {
        Written,  ///< the very same object; `row` is where it stands
        OtherOne, ///< another object has this identity
        FirstOne  ///< nothing has this identity
    };

    rom_WrittenRows();

    /// Looks for an object by its identity, which lies at `address`; if it is not there, enters `row` for it.
    Finding FindOrEnter(const cls_Uid& uid, const void* address, Row& row);

    std::size_t Count() const { return count; }

private:
    struct Entry
    {
        cls_Uid uid;
        const void* address = nullptr; ///< null in a free entry
        Row row = {};
    };

    std::size_t Place(std::uint64_t hash) const { return hash >> shift; }
    /// Objects are written much in the order in which they were made, so their places keep that order in
    /// groups.
    std::size_t Place(const cls_Uid& uid) const
    {
        return (Place(uid.GroupHash()) & ~std::size_t{cls_Uid::GroupSize - 1}) | uid.PlaceInGroup();
    }
    /// An object's own place, apart from others of its identity.
    static std::uint64_t OwnHash(const cls_Uid& uid, const void* address);
    void Grow();
    void Enter(const Entry& entry);

    std::vector<Entry> entries;
    int shift;
    std::size_t count = 0;
};
