#include "cls_Kind.h"

#include <iterator>

namespace
{

constexpr const char* kindNames[] = {
    "int",         "double",           "string",     "bool",           "enum",
    "optional",    "object",           "list_int",   "list_double",    "list_bool",
    "list_string", "list_object",      "map_object", "map_object_int", "array2d",
    "map_array2d", "map_float",        "table",      "property_table", "region",
    "region_list", "region_pair_list", "datum",      "segment",        "segment_list",
    "dot",         "pending"};
static_assert(std::size(kindNames) == static_cast<std::size_t>(cls_KindEnm::Pending) + 1);

} // namespace

const char* cls_Kind::Name() const
{
    return kindNames[static_cast<int>(Id())];
}

unsigned cls_Kind::TypeId() const
{
    return cls_RootId;
}

cls_CollectionType cls_Kind::Collection() const
{
    return cls_CollectionNone;
}

const cls_Description* cls_Kind::Of() const
{
    return nullptr;
}

const omu_EnumTable* cls_Kind::Enum() const
{
    return nullptr;
}

const void* cls_Kind::ConstObject(const void*) const
{
    return nullptr;
}

void* cls_Kind::Object(void*) const
{
    return nullptr;
}
