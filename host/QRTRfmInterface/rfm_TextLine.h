#pragma once

#include "ovr_Export.h"
#include "rfm_Cell.h"
#include "rfm_Type.h"

#include <string>

/// One line of the text of a store, taken in piece by piece. What is not as expected throws
/// `rom_StoreException` with file, line and column. Two hyphens begin a comment.
class OVR_EXPORT rfm_TextLine
{
public:
    /// `text` must stay; `source` names the file and `number` counts from 1.
    rfm_TextLine(std::string_view text, std::string source, int number);

    /// Goes past blanks; true if nothing but a comment is left.
    bool AtEnd();

    /// Whether the line begins without blanks, as those that begin a table do.
    bool BeginsAtMargin() const { return !text.empty() && !IsBlank(text[0]); }

    /// Takes `word` if it is what comes next.
    bool Take(std::string_view word);
    /// Takes `word`, which must come next.
    void Expect(std::string_view word);
    void ExpectEnd();

    /// A name, in quotes if it is no plain one.
    std::string TakeName();
    /// A whole number from `low` to `high`; `what` tells what it is for.
    std::int64_t TakeInteger(const char* what, std::int64_t low = INT64_MIN, std::int64_t high = INT64_MAX);
    /// A value. The bytes of a text or blob are put into `bytes`.
    rfm_Cell TakeCell(std::string& bytes);
    /// A list of numbers, as the bytes of an array of this type.
    rfm_Cell TakeNumbers(rfm_Type type, std::string& bytes);
    /// The first letter of what comes next; null at the end.
    char Next();

    /// Where the next piece begins, for `Raise`.
    std::size_t Position();
    [[noreturn]] void Raise(const std::string& message, std::size_t position) const;
    /// Throws for what comes next.
    [[noreturn]] void Raise(const std::string& message);

    static bool IsBlank(char letter) { return letter == ' ' || letter == '\t' || letter == '\r'; }

    /// Whether a name needs no quotes.
    static bool IsPlainName(std::string_view name);

private:
    bool AtBoundary(std::size_t position) const;
    std::string TakeQuoted();
    char TakeEscape();
    unsigned TakeHexDigit();
    rfm_Cell TakeBlob(std::string& bytes);
    rfm_Cell TakeNumber();
    rfm_Cell TakeSpecialReal();
    std::string_view Word();
    rfm_Cell TakeNaN();
    double TakeReal();

    std::string_view text;
    std::string source;
    int number;
    std::size_t at = 0;
};
