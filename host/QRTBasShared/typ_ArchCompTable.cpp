#include "typ_ArchCompTable.h"

#include <bitset>
#include <unordered_map>

namespace
{
constexpr unsigned moduleCount = 0x10000;

/// By module number. Untouched pages of it cost no memory, so the whole range can stand open.
typ_ArchCompEntry entries[moduleCount];
std::bitset<moduleCount> isEntered;

/// Ids by name, built when first asked for after a change of the table.
using NameIndex = std::unordered_map<std::string_view, unsigned>;

NameIndex& Names()
{
    static NameIndex names;
    return names;
}

const typ_Entry* FindRow(unsigned classId)
{
    const typ_ArchCompEntry& module = entries[classId >> 16];
    const unsigned row = classId & 0xFFFF;
    return row != 0 && row < module.Count() ? module.Rows() + row : nullptr;
}

void IndexNames(NameIndex& names)
{
    for (const unsigned short number : typ_ArchCompTable::Modules())
    {
        const typ_ArchCompEntry& module = entries[number];
        for (unsigned row = 1; row < module.Count(); ++row)
        {
            if (const char* name = module.Rows()[row].name)
                names.emplace(name, (unsigned{number} << 16) | row);
        }
    }
}
} // namespace

void typ_ArchCompTable::InsertEntry(unsigned short moduleNumber, typ_ArchCompEntry entry)
{
    entries[moduleNumber] = entry;
    isEntered.set(moduleNumber);
    Names().clear();
}

void typ_ArchCompTable::RemoveEntry(unsigned short moduleNumber)
{
    entries[moduleNumber] = typ_ArchCompEntry();
    isEntered.reset(moduleNumber);
    Names().clear();
}

const char* typ_ArchCompTable::GetName(unsigned classId)
{
    const typ_Entry* row = FindRow(classId);
    return row == nullptr || row->name == nullptr ? "" : row->name;
}

bool typ_ArchCompTable::IsParent(unsigned ancestorId, unsigned descendantId)
{
    // A line of parents longer than any real one is a circle.
    constexpr int longestLine = 1000;
    const typ_Entry* row = FindRow(descendantId);
    for (int step = 0; row != nullptr && step < longestLine; ++step)
    {
        if (row->parent == ancestorId)
            return ancestorId != descendantId;
        row = FindRow(row->parent);
    }
    return false;
}

unsigned typ_ArchCompTable::Parent(unsigned classId)
{
    const typ_Entry* row = FindRow(classId);
    return row == nullptr ? 0 : row->parent;
}

bool typ_ArchCompTable::IsKnown(unsigned classId)
{
    return FindRow(classId) != nullptr;
}

std::vector<unsigned short> typ_ArchCompTable::Modules()
{
    std::vector<unsigned short> numbers;
    for (unsigned number = 0; number < moduleCount; ++number)
    {
        if (isEntered[number])
            numbers.push_back(static_cast<unsigned short>(number));
    }
    return numbers;
}

typ_ArchCompEntry typ_ArchCompTable::Entry(unsigned short moduleNumber)
{
    return entries[moduleNumber];
}

unsigned typ_ArchCompTable::FindByName(std::string_view name)
{
    NameIndex& names = Names();
    if (names.empty())
        IndexNames(names);
    const auto found = names.find(name);
    return found == names.end() ? 0 : found->second;
}
