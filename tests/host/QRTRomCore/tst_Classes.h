#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "cls_xpCollections.h"
#include "mem_AllocationOperators.h"

#include <string>
#include <vector>

// A small family of persistent classes: every kind of attribute, a base section, handles and collections of
// objects.

class cls_ClassRegistrar;
class tst_Part;

/// Brings the class machinery up and registers the family, once for the test program.
void tst_RequireClasses();

/// Root of the family.
class tst_Part : public mem_AllocationOperators
{
public:
    using Handle = cow_COW<tst_Part, cow_Virtual<tst_Part>>;

    enum Colour
    {
        RED,
        GREEN
    };

    tst_Part() { uid.AllocateUid(); }
    explicit tst_Part(const cls_ReadVisitor& visitor);
    tst_Part(const tst_Part&) = default;
    virtual ~tst_Part() = default;
    virtual tst_Part* Copy() const = 0;
    virtual void DBWrite(const cls_WriteVisitor& visitor) const;
    virtual unsigned DynTypeId() const = 0;

    static constexpr unsigned TypeId() { return 0xFF0001; }

    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    int number = 0;
    cow_String label;
    cls_Uid uid;
};

/// Has an attribute of every scalar and plain collection kind.
class tst_Whole : public tst_Part
{
public:
    tst_Whole() { ownUid.AllocateUid(); }
    explicit tst_Whole(const cls_ReadVisitor& visitor);
    tst_Whole(const tst_Whole&) = default;
    tst_Whole* Copy() const override { return new tst_Whole(*this); }
    void DBWrite(const cls_WriteVisitor& visitor) const override;
    unsigned DynTypeId() const override { return TypeId(); }

    static constexpr unsigned TypeId() { return 0xFF0002; }

    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    int second = 0;
    double value = 0;
    bool flag = false;
    Colour colour = RED;
    cls_xpListDouble doubles;
    cls_xpListInt ints;
    cls_xp1DArrayListBool bools;
    cls_xpListString texts;
    cls_xp2DArrayDouble table;
    cls_xpMapString2Float floats;
    cls_xpMapString2Array2D tables;
    cls_Uid ownUid;
};

/// Holds other parts.
class tst_Node : public tst_Part
{
public:
    tst_Node()
    {
        for (cls_Uid* each : {&listUid, &byNameUid, &byNumberUid, &ownUid})
            each->AllocateUid();
    }
    explicit tst_Node(const cls_ReadVisitor& visitor);
    tst_Node(const tst_Node&) = default;
    tst_Node* Copy() const override { return new tst_Node(*this); }
    void DBWrite(const cls_WriteVisitor& visitor) const override;
    unsigned DynTypeId() const override { return TypeId(); }

    static constexpr unsigned TypeId() { return 0xFF0003; }

    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    /// Thrown from the writing of a node whose number is this, after its first attributes.
    static constexpr int throwingNumber = 123456789;

    Handle child;
    std::vector<Handle> list;
    std::vector<std::pair<cow_String, Handle>> byName;
    std::vector<std::pair<int, Handle>> byNumber;
    cls_Uid listUid;
    cls_Uid byNameUid;
    cls_Uid byNumberUid;
    cls_Uid ownUid;
};

/// What a part holds, down to the last nested one, as a text that is equal for equal parts only: identities
/// and bits included.
std::string tst_Describe(const tst_Part* part);

/// A part whose attributes have all odd values.
tst_Whole* tst_NewOddWhole();
