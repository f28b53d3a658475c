#pragma once

#include "ovr_Export.h"

#include <cstddef>
#include <cstdint>

/// Identity of a stored row, unique across processes and machines. Sixteen bytes: a random number drawn once
/// for each process, and a serial number within it. A default-built identity is blank and equal to every
/// other blank one.
class OVR_EXPORT cls_Uid
{
public:
    /// Bytes of the stored form.
    static constexpr std::size_t Size = 16;

    constexpr cls_Uid() = default;

    /// Takes a fresh identity.
    void AllocateUid()
    {
        if (nextSerial == 0)
            StartProcess();
        process = processNumber;
        serial = nextSerial++;
    }

    /// Replaces the identity by a fresh one.
    void NewUid() { AllocateUid(); }

    bool IsBlank() const { return process == 0 && serial == 0; }

    /// Writes the stored form, `Size` bytes, the same on every machine.
    void ToBytes(unsigned char* bytes) const;
    /// Takes the identity from its stored form, `Size` bytes.
    static cls_Uid FromBytes(const unsigned char* bytes);

    /// How many identities taken one after the other are a group.
    static constexpr unsigned GroupSize = 8;

    /// A number fit for hash tables, the same for all identities of a group: what is made together can then
    /// lie together.
    std::uint64_t GroupHash() const { return (process ^ (serial / GroupSize)) * 0x9E3779B97F4A7C15u; }

    /// Place within the group, below `GroupSize`.
    unsigned PlaceInGroup() const { return static_cast<unsigned>(serial % GroupSize); }

    friend bool operator==(const cls_Uid& left, const cls_Uid& right)
    {
        return left.serial == right.serial && left.process == right.process;
    }

    friend bool operator!=(const cls_Uid& left, const cls_Uid& right) { return !(left == right); }

private:
    static void StartProcess();

    static std::uint64_t processNumber;
    static std::uint64_t nextSerial;

    std::uint64_t process = 0;
    std::uint64_t serial = 0;
};
