#pragma once

#include "cls_ClassMetadata.h"
#include "rfm_TableInfo.h"

#include <memory>

/// One attribute of a class, and the first of the cells that hold it.
struct rom_AttributePlan
{
    cls_FieldHandle field;
    cls_AttributeType type;
    unsigned typeId;
    cls_CollectionType collection;
    int cell; ///< a nested object takes this cell for its class id and the next one for its row
};

/// How objects of one class layer lie in the cells of a row: the identity, the row of the base, then the
/// attributes in stored order. Rows of the two collection classes have cells of their own.
class OVR_EXPORT rom_ClassPlan
{
public:
    static constexpr int UidCell = 0;
    static constexpr int BaseCell = 1; ///< of a derived class

    enum CollectionCell
    {
        CodeCell = 1,
        LengthCell,
        ColumnsCell,
        HandleCell,
        CollectionCellCount
    };

    /// The plan of a class; null if nothing is known of the class.
    static std::unique_ptr<rom_ClassPlan> Of(unsigned classId);
    /// The plan of a form of a class, which must outlive it. `IsA` and `CanBeHeld` go by the current classes.
    static std::unique_ptr<rom_ClassPlan> Of(const cls_ClassMetadata& form);

    static bool IsCollection(unsigned classId)
    {
        return classId == cls_ListTypeId || classId == cls_MapTypeId;
    }

    const rfm_TableInfo& Table() const { return table; }
    unsigned ClassId() const { return table.classId; }
    /// Null for a collection.
    const cls_ClassMetadata* Metadata() const { return metadata; }
    bool IsCollection() const { return metadata == nullptr; }
    bool HasBase() const { return metadata && metadata->HasBase(); }
    /// In stored order.
    const std::vector<rom_AttributePlan>& Attributes() const { return attributes; }
    int CellCount() const { return static_cast<int>(table.columns.size()); }
    /// Whether some class above deletes handles on objects of this class.
    bool CanBeHeld() const;
    /// The class itself or one of those above it.
    bool IsA(unsigned classId) const;

    /// The attribute of a field, or null.
    const rom_AttributePlan* Find(const cls_FieldHandle& field) const
    {
        const auto index = static_cast<std::size_t>(field.Index());
        if (index < byIndex.size() && byIndex[index] >= 0)
        {
            const rom_AttributePlan& attribute = attributes[static_cast<std::size_t>(byIndex[index])];
            if (attribute.field.Name() == field.Name()) [[likely]]
                return &attribute;
        }
        return FindByName(field.Name());
    }

    /// Name of the attribute that a cell belongs to.
    cow_String NameOfCell(int cell) const { return table.columns[static_cast<std::size_t>(cell)].name; }

private:
    rom_ClassPlan() = default;

    void PlanCollection(unsigned classId);
    void PlanClass(const cls_ClassMetadata& described);
    void PlanAttribute(const cls_AttributeMetadata& attribute);
    const rom_AttributePlan* FindByName(const cow_String& name) const;

    rfm_TableInfo table;
    const cls_ClassMetadata* metadata = nullptr;
    std::vector<rom_AttributePlan> attributes;
    std::vector<int> byIndex;
};
