#pragma once

#include "cls_Memento.h"
#include "rom_ClassPlan.h"
#include "rom_RowStore.h"
#include "rom_WrittenRows.h"

#include <exception>
#include <memory>
#include <unordered_map>

class rom_RowWriter;

/// What becomes of the identity of an object when another object of the same identity is written already.
enum class rom_TwinRule
{
    FreshUid, ///< It is stored under a fresh one.
    KeepUid   ///< It is stored under its own, so that two rows have the same.
};

/// One save: hands out the mementos and puts what they gather into a sink. Objects must stay where they are
/// until the session ends, as their addresses tell them apart. An error leaves the session failed: every
/// later operation throws the first error again.
class OVR_EXPORT rom_WriteSession
{
public:
    explicit rom_WriteSession(rom_RowSink& sink, rom_TwinRule twinRule = rom_TwinRule::FreshUid);
    rom_WriteSession(const rom_WriteSession&) = delete;
    rom_WriteSession& operator=(const rom_WriteSession&) = delete;
    ~rom_WriteSession();

    /// The writer for a named object; the session's own, ended by its `Close`.
    cls_MementoWrite* OpenRoot(const cow_String& name);
    /// Throws if the session has failed, or a memento is still open.
    void Finish();
    /// Marks the session as failed with the exception that is being handled.
    void Fail() noexcept;

private:
    friend class rom_RowWriter;

    struct ClassState
    {
        std::unique_ptr<rom_ClassPlan> plan;
        int table = 0;
        std::uint32_t lastOid = 0;
    };

    void RequireSound() const
    {
        if (failure) [[unlikely]]
            std::rethrow_exception(failure);
    }

    rom_RowWriter& NewWriter();
    ClassState& StateOf(unsigned classId);
    /// Throws, and leaves the session failed.
    [[noreturn]] void Raise(const cow_String& table, std::int64_t row, const cow_String& field,
                            const cow_String& message);
    /// Runs `deed`; if it throws, the session has failed.
    template <class Deed>
    void Guarded(Deed deed);

    rom_RowSink& sink;
    rom_TwinRule twinRule;
    std::exception_ptr failure;
    std::unordered_map<unsigned, ClassState> classes;
    ClassState* lastClass = nullptr;
    rom_WrittenRows written;
    std::vector<std::unique_ptr<rom_RowWriter>> writers;
    std::vector<rom_RowWriter*> freeWriters;
};
