#pragma once

#include <string_view>

namespace atr_detail
{
/// Takes a message text apart into literal pieces, "%%" and placeholders: "%s", "%d" (in order) and "%2$s",
/// "%2$d" (by number). A percent sign that begins none of these is literal.
class FormatText
{
public:
    enum class Piece
    {
        Literal,
        Percent,
        Placeholder
    };

    explicit FormatText(std::string_view text) : rest(text) {}

    /// Takes the next piece; false at the end.
    bool Next();

    Piece Kind() const { return kind; }
    /// The piece as it stands in the text.
    std::string_view Text() const { return piece; }
    /// Of a placeholder: its number, or else its place among the placeholders without one; from 1 on.
    int Position() const { return position; }

private:
    bool TakePlaceholder();
    bool Take(std::size_t size, Piece taken);

    std::string_view rest;
    std::string_view piece;
    Piece kind = Piece::Literal;
    int position = 0;
    int ordinal = 0;
};
} // namespace atr_detail
