#pragma once

#include "cls_Description.h"
#include "nex_Exceptions.h"

#include <memory>
#include <optional>
#include <string>

/// A rule that an object breaks.
struct cmd_BrokenRule
{
    /// As "kamC:2", stable for ever; empty where the rule raises its text without a code.
    std::string id;
    std::optional<int> code;
    std::string message;
};

/// The first rule of its class that an object breaks, if there is one.
OVR_EXPORT std::optional<cmd_BrokenRule> cmd_FindBrokenRule(const cls_Description& description,
                                                            const void* object);

/// A command after which a rule would be broken. The text names the object's path, the rule's id and its
/// message.
class OVR_EXPORT cmd_RuleError : public nex_PrimException<atr_String, 1>
{
public:
    cmd_RuleError(const std::string& path, const cmd_BrokenRule& rule);
    /// The same error told with `where` before its text.
    cmd_RuleError(const std::string& where, const cmd_RuleError& error);
    cmd_RuleError(const cmd_RuleError&) noexcept = default;
    cmd_RuleError& operator=(const cmd_RuleError&) noexcept = default;
    ~cmd_RuleError() override;

    const cmd_BrokenRule& Rule() const noexcept { return *rule; }

protected:
    [[noreturn]] void Raise() const override;

private:
    std::shared_ptr<const cmd_BrokenRule> rule;
};
