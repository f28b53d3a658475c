#pragma once

#include "atr_String.h"
#include "cls_Uid.h"
#include "cow_Map.h"
#include "omu_Primitive.h"

class cls_ClassRegistrar;
class cls_ReadVisitor;

/// A value of some enumeration, as its text. The enumerations themselves derive from it; each knows its own
/// table.
class OVR_EXPORT omu_PrimEnumBase : public omu_Primitive
{
public:
    /// Holds no text.
    omu_PrimEnumBase();
    /// Takes the text from a record.
    explicit omu_PrimEnumBase(const cls_ReadVisitor& visitor);
    omu_PrimEnumBase(const omu_PrimEnumBase&) = default;
    omu_PrimEnumBase& operator=(const omu_PrimEnumBase&) = default;
    ~omu_PrimEnumBase() override;

    static unsigned TypeId();
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    cow_String TypeString() const override;
    cow_String AsString(int form) const override;
    /// Equal to another enumeration value of the same text.
    bool operator==(const omu_Primitive& other) const override;
    /// The same; without it two enumeration values compare in two equally good orders.
    bool operator==(const omu_PrimEnumBase& other) const { return other.string == string; }
    void Accept(omu_PrimVisitor* visitor) override;
    omu_PrimEnumBase* Copy() const override = 0;
    unsigned DynTypeId() const override;
    void DBWrite(const cls_WriteVisitor& visitor) const override;

    /// True and changes the object if the enumeration has the text; false and leaves it alone otherwise.
    virtual bool SetValue(const char* text) = 0;
    /// Every text of the enumeration with its value.
    virtual cow_Map<cow_String, unsigned> PermissibleValues() const = 0;

    /// The text.
    const cow_String& GetString() const { return string; }

    /// The texts of the enumeration in the order of its table, as messages list them: "STEP, TOTAL".
    cow_String PermissibleValuesAsString() const;

protected:
    void SetString(const char* text) { string = text; }

    /// The names in the order of the enumeration's table, separated by ", ".
    virtual cow_String NamesInOrder() const = 0;

    /// Throws `nex_CmdException<atr_String, 2>` with `message`, its first placeholder filled by the value
    /// refused and its second, if it has one, by the list of texts.
    [[noreturn]] void RaiseNotAllowed(const char* message, int value) const;
    [[noreturn]] void RaiseNotAllowed(const char* message, const char* value) const;

private:
    cow_String string;
    cls_Uid uid;
};
