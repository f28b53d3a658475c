#pragma once

#include "dbc_CellRow.h"
#include "rfm_Cursor.h"

/// The databases between which an upgrade works.
struct dbc_Stores
{
    rfm_Database& old;     ///< the store as it was, for reading alone
    rfm_Database& working; ///< the new store, with the old one and the scratch file attached
};

/// Rows that lie in one physical table, and how they are seen in a form of their class.
struct dbc_Layer
{
    rfm_TableForm physical;  ///< of the schema `rfm_OldSchema` or `rfm_ScratchSchema`
    std::vector<int> source; ///< for each column of the form that of the physical table, -1 for none
};

/// A table somewhere on its way: a form, and the layers that hold the rows. A row in a later layer stands in
/// place of that of the same number in an earlier one. A step that needs no function changes the form alone.
struct dbc_TableState
{
    const dbc_Form* form = nullptr;
    std::vector<dbc_Layer> layers;

    /// The same rows in another form: columns of the same name and kind stay.
    dbc_TableState InForm(const dbc_Form& newForm) const;
};

/// Reads the rows of a table state.
class dbc_StateCursor
{
public:
    /// Class ids of references go through `changes`, which must stay.
    dbc_StateCursor(const dbc_Stores& stores, const dbc_TableState& state,
                    const std::vector<rfm_ClassIdChange>& changes);

    /// Goes to the row with the lowest number from `oid` on; false if there is none.
    bool SeekFrom(std::int64_t oid);
    /// Goes to the next row; false if there is none.
    bool Next();
    /// Goes to a row; false if it is not there.
    bool Seek(std::int64_t oid);

    /// Fills a row of the state's form. Texts stay until the cursor goes on.
    void Take(dbc_CellRow& row) const;
    std::int64_t Oid() const { return current->cursor->Key(); }
    /// Leaves the row, so that the next search sees what was put in since; false if there are more layers
    /// now.
    bool Leave();
    /// Whether the cursor stands on a row of this number.
    bool IsOn(std::int64_t oid) const { return current && Oid() == oid; }

private:
    struct Source
    {
        std::size_t layer;
        std::unique_ptr<rfm_Cursor> cursor;
        bool isWhole; ///< the cells of a row are those of the form, one for one
        bool isThere = false;
    };

    bool FindLowest();
    void ChangeClassId(rfm_Cell& cell) const;

    const dbc_TableState& state;
    const std::vector<rfm_ClassIdChange>& changes;
    std::vector<Source> sources;
    Source* current = nullptr;
};

/// Highest row number of a state's rows; 0 if there are none above.
std::int64_t dbc_LastOid(const dbc_Stores& stores, const dbc_TableState& state);
