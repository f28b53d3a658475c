#pragma once

#include "cls_Memento.h"
#include "rom_ClassPlan.h"
#include "rom_RowStore.h"

#include <memory>
#include <unordered_map>

class rom_RowReader;

/// One reading of a store: hands out the mementos, and keeps a share of every object that it built, so that a
/// row read again gives the same object. Nothing that the store says is trusted.
class OVR_EXPORT rom_ReadSession
{
public:
    explicit rom_ReadSession(rom_RowSource& source);
    rom_ReadSession(const rom_ReadSession&) = delete;
    rom_ReadSession& operator=(const rom_ReadSession&) = delete;
    /// Gives back the session's shares.
    ~rom_ReadSession();

    /// The object in a row, which must be of class `expected` or of a class derived from it. The handle stays
    /// until the session's next operation.
    const cls_ErasedHandle& ReadObject(unsigned expected, unsigned classId, std::int64_t oid);
    /// A new object from a row of just this class, owned by the caller.
    void* ReadOwnObject(unsigned classId, std::int64_t oid);

private:
    friend class rom_RowReader;

    struct ClassState
    {
        std::unique_ptr<rom_ClassPlan> plan;
        int table = 0;
        bool canBeBuilt = false;
        unsigned checkedClassId = 0; ///< a class that this one is known to be derived from, or 0
    };

    struct HeldObject
    {
        const ClassState* state = nullptr; ///< null in a free place
        std::int64_t oid = 0;
        cls_ErasedHandle* holder = nullptr;
    };

    /// Where something was last asked for, to name it in errors.
    struct Place
    {
        const ClassState* state = nullptr; ///< null before the first row
        std::int64_t oid = 0;
        const cow_String* field = nullptr; ///< null for the row itself, or an element of it
        std::int64_t element = -1;
    };

    rom_RowReader& NewReader();
    /// A reader on a row to which `referrer`, null for a root, refers.
    rom_RowReader& OpenRow(rom_RowReader* referrer, ClassState& state, std::int64_t oid);
    ClassState& StateOf(unsigned classId);
    void RequireIsA(ClassState& state, unsigned expected);
    void* Build(rom_RowReader* referrer, ClassState& state, std::int64_t oid);
    const cls_ErasedHandle& Held(rom_RowReader* referrer, unsigned expected, unsigned classId,
                                 std::int64_t oid);
    const cls_ErasedHandle& NoObject();
    HeldObject& PlaceOf(const ClassState& state, std::int64_t oid);
    void Hold(const ClassState& state, std::int64_t oid, void* object);
    void Spend(std::int64_t bytes);

    [[noreturn]] void Raise(const cow_String& message) const;

    rom_RowSource& source;
    std::unordered_map<unsigned, ClassState> classes;
    ClassState* lastClass = nullptr;
    std::vector<HeldObject> held;
    std::size_t heldCount = 0;
    int heldShift;
    cls_ErasedHandle noObject;
    std::int64_t budget;
    Place place;
    std::vector<std::unique_ptr<rom_RowReader>> readers;
    std::vector<rom_RowReader*> freeReaders;
};
