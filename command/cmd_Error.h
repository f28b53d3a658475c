#pragma once

#include "nex_Exceptions.h"

#include <string>
#include <vector>

/// A command that cannot be carried out: a text that does not read, an unknown word, symbol or path, a value
/// of the wrong kind, a missing argument. The text names the class or path, the word, what was given and what
/// is expected.
class OVR_EXPORT cmd_Error : public nex_CmdException<atr_String, 2>
{
public:
    explicit cmd_Error(const std::string& message) noexcept;
    cmd_Error(const cmd_Error&) noexcept = default;
    cmd_Error& operator=(const cmd_Error&) noexcept = default;
    ~cmd_Error() override;

protected:
    [[noreturn]] void Raise() const override;
};

/// The candidate that differs least from `word`, if it is near enough to be meant: at most a third of its
/// characters wrong, missing, in excess or exchanged with their neighbour, case aside. Empty if there is
/// none; the first of equally near ones.
OVR_EXPORT std::string cmd_Nearest(const std::string& word, const std::vector<std::string>& candidates);

/// The end of a message on something that is not known: "expected one of a, b, c; did you mean b?".
OVR_EXPORT std::string cmd_ExpectedOneOf(const std::string& given,
                                         const std::vector<std::string>& candidates);
