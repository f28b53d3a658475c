#include "dbc_Utils.h"

#include "dbc_DatabaseConverter.h"
#include "dbc_DatabaseConverterHolder.h"
#include "dbc_InputDatabase.h"
#include "dbc_OutputDatabase.h"
#include "nex_Exceptions.h"
#include "rom_Transporter.h"

#include <string>

namespace
{
[[noreturn]] void Raise(const cow_String& message)
{
    nex_CmdException<atr_String, 2>(atr_String(message), 0).Throw(__FILE__, __LINE__);
}

dbc_DatabaseConverter& Converter()
{
    dbc_DatabaseConverter* converter =
        omi_Singleton<dbc_DatabaseConverterHolder>::Instance()->GetDatabaseConverter();
    if (!converter)
        Raise("No upgrade is under way.");
    return *converter;
}

rfm_FieldHandle ClassIdOf(const cow_String& name)
{
    return rfm_FieldHandle(cow_String(name).append("#ClassID"), -1);
}

rfm_FieldHandle OidOf(const cow_String& name)
{
    return rfm_FieldHandle(cow_String(name).append("#OID"), -1);
}

void Refer(dbc_Row& row, const cow_String& name, unsigned classId, std::int64_t oid)
{
    row.PutInt(ClassIdOf(name), classId);
    row.PutInt(OidOf(name), oid);
}

std::unique_ptr<dbc_Table> ElementsOf(const dbc_Row& row, const cow_String& name, unsigned classId)
{
    const bool isThere = row.HasValue(ClassIdOf(name)) && row.HasValue(OidOf(name));
    const std::int64_t oid = isThere ? row.GetInt(OidOf(name)) : 0;
    return Converter().GetInputDatabase().ElementsOf(name, classId, oid);
}

std::unique_ptr<dbc_Table> NewElements(dbc_Row& row, const cow_String& name, unsigned classId,
                                       cls_CollectionType code)
{
    std::int64_t oid = 0;
    std::unique_ptr<dbc_Table> elements =
        Converter().GetOutputDatabase().NewElements(name, classId, code, oid);
    Refer(row, name, classId, oid);
    return elements;
}
} // namespace

dbc_Utils::dbc_Utils() = default;

dbc_Utils::~dbc_Utils() = default;

dbc_TableRfm* dbc_Utils::CreateClassInOutputDatabase(unsigned classId, const rom_Transporter& transporter)
{
    if (!transporter.GetTableMetadata(classId))
        Raise(cow_String("The table of an unknown class can't be made (")
                  .append(std::to_string(classId).c_str())
                  .append(")."));
    return Converter().GetOutputDatabase().GetOutputTable(classId);
}

const dbc_Row* dbc_Utils::GetBaseObj(const dbc_Table& table, const dbc_Row& row)
{
    const rfm_FieldHandle base("##BaseClassOID", -1);
    return row.HasValue(base) ? table.Find(row.GetInt(base)) : nullptr;
}

std::int64_t dbc_Utils::SetObj(dbc_Table& table, const cow_String& name, dbc_Row& row, unsigned classId)
{
    dbc_Row& made = table.NewRow();
    const std::int64_t oid = made.Oid();
    table.Commit(made);
    Refer(row, name, classId, oid);
    return oid;
}

std::unique_ptr<dbc_Table> dbc_Utils::GetAttributeMapFromInputDatabase(const dbc_Row& row,
                                                                       const cow_String& name)
{
    return ElementsOf(row, name, cls_MapTypeId);
}

std::unique_ptr<dbc_Table> dbc_Utils::GetAttributeListFromInputDatabase(const dbc_Row& row,
                                                                        const cow_String& name)
{
    return ElementsOf(row, name, cls_ListTypeId);
}

std::unique_ptr<dbc_Table>
dbc_Utils::SetNewAttributeListInOutputDatabase(dbc_Row& row, const cow_String& name, cls_CollectionType code)
{
    return NewElements(row, name, cls_ListTypeId, code);
}

std::unique_ptr<dbc_Table> dbc_Utils::SetNewAttributeMapInOutputDatabase(dbc_Row& row, const cow_String& name,
                                                                         cls_CollectionType code)
{
    return NewElements(row, name, cls_MapTypeId, code);
}

std::vector<double> dbc_Utils::GetAttributeArrayDoubleFromInputDatabase(const dbc_Row& row,
                                                                        const cow_String& name, int& columns)
{
    columns = 0;
    if (!row.HasValue(ClassIdOf(name)) || !row.HasValue(OidOf(name)))
        return {};
    dbc_InputDatabase& input = Converter().GetInputDatabase();
    dbc_Table* lists = input.GetInputTable(cls_ListTypeId);
    const dbc_Row* list = lists ? lists->Find(row.GetInt(OidOf(name))) : nullptr;
    const rfm_FieldHandle handle("Target#Handle", -1);
    if (!list || !list->HasValue(handle))
        return {};
    columns = static_cast<int>(list->GetInt(rfm_FieldHandle("Target#Columns", -1)));
    const rfm_Array<double, rfm_TypeDouble> array = input.ArrayDouble(list->GetInt(handle));
    std::vector<double> values(static_cast<std::size_t>(array.Length()));
    array.Read(values.data());
    return values;
}

void dbc_Utils::SetNewAttributeArrayDoubleInOutputDatabase(dbc_Row& row, const cow_String& name,
                                                           const std::vector<double>& values, int columns,
                                                           cls_CollectionType code)
{
    Refer(row, name, cls_ListTypeId, Converter().GetOutputDatabase().NewNumbers(code, values, columns));
}
