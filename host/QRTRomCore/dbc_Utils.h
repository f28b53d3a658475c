#pragma once

#include "cls_Types.h"
#include "dbc_Table.h"
#include "omi_Singleton.h"

#include <memory>
#include <vector>

class rom_Transporter;

/// What conversion functions have in common. Works on the databases of the converter that is at work, which
/// `dbc_DatabaseConverterHolder` has.
class OVR_EXPORT dbc_Utils : public omi_SingletonBase<dbc_Utils>
{
public:
    dbc_Utils();
    ~dbc_Utils();

    /// The output table of a class, made if there is none. Throws if `transporter` does not know the class.
    dbc_TableRfm* CreateClassInOutputDatabase(unsigned classId, const rom_Transporter& transporter);

    /// The row of `row`'s base, which stands in `table`; null if it has none there. It stays until the
    /// table's next `Find`.
    const dbc_Row* GetBaseObj(const dbc_Table& table, const dbc_Row& row);

    /// Makes a new row in `table`, an output table of class `classId`, and lets the object attribute `name`
    /// of `row` refer to it. Its attributes take the class's defaults when the upgrade ends. Returns its
    /// number.
    std::int64_t SetObj(dbc_Table& table, const cow_String& name, dbc_Row& row, unsigned classId);

    // Elements of a collection are rows of the fields "Key" and "Value", which are there where the collection
    // has such, and "ClassID" and "OID" of the element's object. Their numbers count from 0.

    /// The elements of the collection that the attribute `name` of an input row refers to; none for an absent
    /// one.
    std::unique_ptr<dbc_Table> GetAttributeMapFromInputDatabase(const dbc_Row& row, const cow_String& name);
    /// The same for a list.
    std::unique_ptr<dbc_Table> GetAttributeListFromInputDatabase(const dbc_Row& row, const cow_String& name);

    /// Gives the attribute `name` of `row` a new collection of the kind `code`, and returns it for elements
    /// to be added by `NewRow` and `Commit`. Keys must be added in ascending order.
    std::unique_ptr<dbc_Table>
    SetNewAttributeListInOutputDatabase(dbc_Row& row, const cow_String& name,
                                        cls_CollectionType code = cls_CollectionListObj);
    std::unique_ptr<dbc_Table>
    SetNewAttributeMapInOutputDatabase(dbc_Row& row, const cow_String& name,
                                       cls_CollectionType code = cls_CollectionMapString2Obj);

    /// The numbers of an array of doubles that the attribute `name` of an input row refers to, row by row,
    /// and its columns; empty for an absent one.
    std::vector<double> GetAttributeArrayDoubleFromInputDatabase(const dbc_Row& row, const cow_String& name,
                                                                 int& columns);
    /// Gives the attribute `name` of `row` a new array of `values`, row by row; a list has one column.
    void SetNewAttributeArrayDoubleInOutputDatabase(dbc_Row& row, const cow_String& name,
                                                    const std::vector<double>& values, int columns,
                                                    cls_CollectionType code = cls_Collection2DArrayDouble);
};
