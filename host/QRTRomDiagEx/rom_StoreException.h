#pragma once

#include "QRTBasException.h"

#include <cstdint>

/// A store that cannot be read or written: the place in it, and what was found there against what was
/// expected.
class OVR_EXPORT rom_StoreException : public QRTBasException
{
public:
    /// For the row number of an error that belongs to no row.
    static constexpr std::int64_t NoRow = -1;

    /// `table` and `field` may be empty. The text is "FILE: table T, row N, field F: message", without the
    /// parts that the place does not have.
    rom_StoreException(const cow_String& storeFile, const cow_String& table, std::int64_t row,
                       const cow_String& field, const cow_String& message);
    /// An error of the store as a whole.
    rom_StoreException(const cow_String& storeFile, const cow_String& message);
    rom_StoreException(const rom_StoreException&) noexcept = default;
    rom_StoreException& operator=(const rom_StoreException&) noexcept = default;
    ~rom_StoreException() override;

    /// Path of the store.
    const cow_String& StoreFile() const noexcept { return storeFile; }
    /// Name of the table, or empty.
    const cow_String& Table() const noexcept { return table; }
    /// OID of the row, or NoRow.
    std::int64_t Row() const noexcept { return row; }
    /// Name of the field, or empty.
    const cow_String& Field() const noexcept { return field; }
    /// The text without the place.
    const cow_String& Message() const noexcept { return message; }

protected:
    [[noreturn]] void Raise() const override;

private:
    cow_String storeFile;
    cow_String table;
    std::int64_t row;
    cow_String field;
    cow_String message;
};

/// A store that can be read when it is upgraded.
class OVR_EXPORT rom_OldStoreException : public rom_StoreException
{
public:
    /// `table` has a version below that of its class.
    rom_OldStoreException(const cow_String& storeFile, const cow_String& table, const cow_String& message);
    rom_OldStoreException(const rom_OldStoreException&) noexcept = default;
    rom_OldStoreException& operator=(const rom_OldStoreException&) noexcept = default;
    ~rom_OldStoreException() override;

protected:
    [[noreturn]] void Raise() const override;
};
