#include "cmd_Rules.h"

#include "cls_Module.h"

#include <string_view>

namespace
{

/// "kamC:2" for the module's own assert function, "klcC_AssertLoadCaseContent:2" for any other.
std::string IdOf(const cls_RuleException& rule)
{
    std::string_view function = rule.Table().function;
    constexpr std::string_view ending = "_Assert";
    if (function.ends_with(ending))
        function.remove_suffix(ending.size());
    return std::string(function) + ':' + std::to_string(rule.Code());
}

std::string TextOf(const std::string& path, const cmd_BrokenRule& rule)
{
    return path + ": " + rule.id + (rule.id.empty() ? "" : " ") + rule.message;
}

} // namespace

std::optional<cmd_BrokenRule> cmd_FindBrokenRule(const cls_Description& description, const void* object)
{
    const auto assertValid = description.Info().assertValid;
    if (!assertValid)
        return std::nullopt;
    try
    {
        assertValid(object);
        return std::nullopt;
    }
    catch (const cls_RuleException& rule)
    {
        return cmd_BrokenRule{IdOf(rule), rule.Code(), rule.what()};
    }
    catch (const QRTBasException& rule)
    {
        return cmd_BrokenRule{"", std::nullopt, rule.what()};
    }
}

cmd_RuleError::cmd_RuleError(const std::string& path, const cmd_BrokenRule& rule)
    : nex_PrimException<atr_String, 1>(atr_raw(TextOf(path, rule).c_str(), 0), 0),
      rule(std::make_shared<const cmd_BrokenRule>(rule))
{}

cmd_RuleError::cmd_RuleError(const std::string& where, const cmd_RuleError& error)
    : nex_PrimException<atr_String, 1>(atr_raw((where + error.what()).c_str(), 0), 0), rule(error.rule)
{}

cmd_RuleError::~cmd_RuleError() = default;

void cmd_RuleError::Raise() const
{
    throw cmd_RuleError(*this);
}
