#pragma once

#include "atr_String.h"
#include "cls_ClassRegistrar.h"
#include "cls_MetadataRegistrar.h"
#include "nex_Exceptions.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

/// Steps a module's counter up. True at the first initialization, which also adds 1 to `tally`.
inline bool cls_StepUp(int& moduleCount, int& tally)
{
    if (moduleCount++ != 0)
        return false;
    tally += 1;
    return true;
}

/// Steps a module's counter down. True at the last finalization, which also takes 1 from `tally`.
inline bool cls_StepDown(int& moduleCount, int& tally)
{
    if (--moduleCount != 0)
        return false;
    tally -= 1;
    return true;
}

/// Hands the metadata functions of the classes to the host, in the order given.
template <class... Classes>
void cls_RegisterClasses(unsigned mask = cls_MetadataRegistrar::DefaultMask)
{
    (omi_Singleton<cls_MetadataRegistrar>::Instance()->initClassMetadata(Classes::InitializeMetadata, mask),
     ...);
}

/// The messages of one assert function; a text's position is its code.
struct cls_MessageTable
{
    const char* function;
    const char* const* texts;
    int count;
    /// Whether messages are translated; those of most modules are not.
    bool isTranslated = false;

    /// The text of a code, or null for a code outside the table.
    const char* Text(int code) const { return code >= 0 && code < count ? texts[code] : nullptr; }
};

/// A rule that an object breaks, as the module assert functions throw it: callers that only show the text
/// catch it as its base, programs that tell rules apart ask for table and code.
class OVR_EXPORT cls_RuleException : public nex_PrimException<atr_String, 1>
{
public:
    /// `table` must outlive the exception.
    cls_RuleException(const atr_String& text, const cls_MessageTable& table, int code) noexcept;
    cls_RuleException(const cls_RuleException&) noexcept = default;
    cls_RuleException& operator=(const cls_RuleException&) noexcept = default;
    ~cls_RuleException() override;

    /// The assert function's messages.
    const cls_MessageTable& Table() const noexcept { return *table; }

    /// The code that the rule gave; it may lie outside the table.
    int Code() const noexcept { return code; }

protected:
    [[noreturn]] void Raise() const override;

private:
    const cls_MessageTable* table;
    int code;
};

/// Throws `cls_RuleException` with the text of `code`; an unknown code throws with an empty text. `file` and
/// `line` are the place that the exception records.
[[noreturn]] OVR_EXPORT void cls_RaiseMessage(const cls_MessageTable& table, int code, const char* file,
                                              int line);
/// The same for a table whose texts have one "%s", in whose place `name` is put untranslated.
[[noreturn]] OVR_EXPORT void cls_RaiseMessage(const cls_MessageTable& table, int code, const cow_String& name,
                                              const char* file, int line);

/// One text of a label map.
struct cls_Label
{
    int key;
    std::string text;
};

/// What the modules hold beside their classes, for the catalogue: message tables and label maps.
class OVR_EXPORT cls_Catalogue : public omi_SingletonBase<cls_Catalogue>
{
public:
    struct Messages
    {
        unsigned short module;
        const cls_MessageTable* table;
    };

    struct Labels
    {
        const char* name;
        std::vector<cls_Label> (*rows)();
    };

    cls_Catalogue();
    ~cls_Catalogue();

    /// Notes a message table of a module; a second time does nothing.
    void AddMessages(unsigned short module, const cls_MessageTable& table);
    /// Notes a label map and the function that lists it; a second time does nothing.
    void AddLabels(const char* name, std::vector<cls_Label> (*rows)());

    const std::vector<Messages>& AllMessages() const { return messages; }

    const std::vector<Labels>& AllLabels() const { return labels; }

private:
    std::vector<Messages> messages;
    std::vector<Labels> labels;
};
