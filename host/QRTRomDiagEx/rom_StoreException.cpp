#include "rom_StoreException.h"

#include <string>

namespace
{
cow_String Describe(const cow_String& file, const cow_String& table, std::int64_t row,
                    const cow_String& field, const cow_String& message)
{
    cow_String text(file);
    const char* separator = file.IsEmpty() ? "" : ": ";
    const auto add = [&](const char* word, const cow_String& part)
    {
        if (part.IsEmpty())
            return;
        text.append(separator).append(word).append(part);
        separator = ", ";
    };
    add("table ", table);
    if (row != rom_StoreException::NoRow)
        add("row ", std::to_string(row).c_str());
    add("field ", field);
    if (!text.IsEmpty())
        text.append(": ");
    return text.append(message);
}
} // namespace

rom_StoreException::rom_StoreException(const cow_String& storeFile, const cow_String& table, std::int64_t row,
                                       const cow_String& field, const cow_String& message)
    : QRTBasException(Describe(storeFile, table, row, field, message)),
      storeFile(storeFile),
      table(table),
      row(row),
      field(field),
      message(message)
{}

rom_StoreException::rom_StoreException(const cow_String& storeFile, const cow_String& message)
    : rom_StoreException(storeFile, cow_String(), NoRow, cow_String(), message)
{}

rom_StoreException::~rom_StoreException() = default;

void rom_StoreException::Raise() const
{
    throw rom_StoreException(*this);
}

rom_OldStoreException::rom_OldStoreException(const cow_String& storeFile, const cow_String& table,
                                             const cow_String& message)
    : rom_StoreException(storeFile, table, NoRow, cow_String(), message)
{}

rom_OldStoreException::~rom_OldStoreException() = default;

void rom_OldStoreException::Raise() const
{
    throw rom_OldStoreException(*this);
}
