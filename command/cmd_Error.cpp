#include "cmd_Error.h"

#include "cmd_Utf8.h"
#include "cmd_Value.h"

#include <algorithm>

cmd_Error::cmd_Error(const std::string& message) noexcept
    : nex_CmdException<atr_String, 2>(atr_raw(message.c_str(), 0), 0)
{}

cmd_Error::cmd_Error(const std::string& message, cmd_Place place)
    : nex_CmdException<atr_String, 2>(atr_raw(message.c_str(), 0), 0),
      place(std::make_shared<const cmd_Place>(std::move(place)))
{}

cmd_Error::cmd_Error(const std::string& where, const cmd_Error& error)
    : nex_CmdException<atr_String, 2>(atr_raw((where + error.what()).c_str(), 0), 0), place(error.place)
{}

cmd_Error::~cmd_Error() = default;

void cmd_Error::Raise() const
{
    throw cmd_Error(*this);
}

namespace
{

std::string Folded(std::string text)
{
    for (char& c : text)
    {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
}

/// Count of characters to change, insert, leave out or exchange with their neighbour to get from one text to
/// the other.
std::size_t Distance(const std::string& left, const std::string& right)
{
    using Row = std::vector<std::size_t>;
    Row beforeLast(right.size() + 1);
    Row last(right.size() + 1);
    Row row(right.size() + 1);
    for (std::size_t j = 0; j <= right.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= left.size(); ++i)
    {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = i;
        for (std::size_t j = 1; j <= right.size(); ++j)
        {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (left[i - 1] != right[j - 1])});
            if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1])
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row[right.size()];
}

/// One character as it is printed: what Python would write as an escape, and a null, is "?".
std::string Printed(const std::string& character)
{
    const bool isAscii = character.size() == 1 && character[0] >= ' ' && character[0] <= '~';
    const bool isEscaped = character[0] == '\0' || cmd_QuotedText(character).find('\\') != std::string::npos;
    return isAscii || !isEscaped ? character : "?";
}

constexpr std::size_t mostBefore = 60;
constexpr std::size_t mostMarked = 40;
constexpr std::size_t mostBehind = 20;

constexpr std::size_t longestWord = 100;
constexpr std::size_t mostListed = 24;

} // namespace

std::string cmd_Marked(const cmd_Place& place)
{
    const std::string& text = place.text;
    const std::size_t markedEnd = std::min(place.end, place.begin + mostMarked);
    std::size_t position = place.begin > mostBefore ? place.begin - mostBefore : 0;
    while (!cmd_IsCharacterStart(text, position))
        ++position;
    std::string shown = position > 0 ? "..." : "";
    std::string marks(shown.size(), ' ');
    bool isMarked = false;
    const auto mark = [&](std::size_t at)
    {
        const bool isWithin = at >= place.begin && (at < markedEnd || !isMarked);
        marks += !isWithin ? ' ' : isMarked ? '~' : '^';
        isMarked = isMarked || isWithin;
    };
    const std::size_t end = std::min(text.size(), std::max(markedEnd, place.begin) + mostBehind);
    while (position < end)
    {
        std::size_t next = position + 1;
        while (!cmd_IsCharacterStart(text, next))
            ++next;
        shown += Printed(text.substr(position, next - position));
        mark(position);
        position = next;
    }
    if (!isMarked)
        mark(text.size());
    if (position < text.size())
        shown += "...";
    marks.erase(marks.find_last_not_of(' ') + 1);
    return shown + '\n' + marks;
}

std::string cmd_Nearest(const std::string& word, const std::vector<std::string>& candidates)
{
    if (word.size() > longestWord)
        return "";
    const std::string folded = Folded(word);
    const std::string* nearest = nullptr;
    std::size_t least = std::max<std::size_t>(1, word.size() / 3) + 1;
    for (const std::string& candidate : candidates)
    {
        if (candidate.size() > 2 * longestWord)
            continue;
        const std::size_t distance = Distance(folded, Folded(candidate));
        if (distance < least && distance < std::max(word.size(), candidate.size()))
        {
            least = distance;
            nearest = &candidate;
        }
    }
    return nearest ? *nearest : "";
}

std::string cmd_ExpectedOneOf(const std::string& given, const std::vector<std::string>& candidates)
{
    if (candidates.empty())
        return "there is none";
    std::string text = candidates.size() == 1 ? "expected " : "expected one of ";
    const std::size_t listed = std::min(candidates.size(), mostListed);
    for (std::size_t i = 0; i < listed; ++i)
        text += (i > 0 ? ", " : "") + candidates[i];
    if (listed < candidates.size())
        text += ", ... (" + std::to_string(candidates.size()) + " in all)";
    const std::string nearest = cmd_Nearest(given, candidates);
    if (!nearest.empty())
        text += "; did you mean " + nearest + '?';
    return text;
}
