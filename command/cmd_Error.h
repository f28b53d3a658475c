#pragma once

#include "nex_Exceptions.h"

#include <memory>
#include <string>
#include <vector>

/// A stretch of a text that is wrong, from the byte `begin` to before `end`; at least one character.
struct cmd_Place
{
    std::string text;
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The text around the place on one line, and below it a line with a caret under the place and a tilde under
/// each further character of it. What does not print is shown as "?".
OVR_EXPORT std::string cmd_Marked(const cmd_Place& place);

/// A command that cannot be carried out: a text that does not read, an unknown word, symbol or path, a value
/// of the wrong kind, a missing argument. The text names the class or path, the word, what was given and what
/// is expected.
class OVR_EXPORT cmd_Error : public nex_CmdException<atr_String, 2>
{
public:
    explicit cmd_Error(const std::string& message) noexcept;
    /// With the place that is wrong in what was given.
    cmd_Error(const std::string& message, cmd_Place place);
    /// The same error told with `where` before its message.
    cmd_Error(const std::string& where, const cmd_Error& error);
    cmd_Error(const cmd_Error&) noexcept = default;
    cmd_Error& operator=(const cmd_Error&) noexcept = default;
    ~cmd_Error() override;

    /// The place that is wrong, or null if it is not known.
    const cmd_Place* Place() const noexcept { return place.get(); }

protected:
    [[noreturn]] void Raise() const override;

private:
    // Shared, for an exception's copies must not throw.
    std::shared_ptr<const cmd_Place> place;
};

/// The candidate that differs least from `word`, if it is near enough to be meant: at most a third of its
/// characters wrong, missing, in excess or exchanged with their neighbour, case aside. Empty if there is
/// none; the first of equally near ones.
OVR_EXPORT std::string cmd_Nearest(const std::string& word, const std::vector<std::string>& candidates);

/// The end of a message on something that is not known: "expected one of a, b, c; did you mean b?".
OVR_EXPORT std::string cmd_ExpectedOneOf(const std::string& given,
                                         const std::vector<std::string>& candidates);
