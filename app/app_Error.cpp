#include "app_Error.h"

#include "cmd_Error.h"
#include "cmd_Utf8.h"

#include <algorithm>

std::string app_OnOneLine(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

namespace
{

/// The text without its middle if it is longer than anyone reads.
std::string Clipped(const std::string& text)
{
    constexpr std::size_t kept = 1000;
    if (text.size() <= 2 * kept)
        return text;
    std::size_t head = kept;
    while (!cmd_IsCharacterStart(text, head))
        --head;
    std::size_t tail = text.size() - kept;
    while (!cmd_IsCharacterStart(text, tail))
        ++tail;
    return text.substr(0, head) + " ... " + text.substr(tail);
}

} // namespace

std::string app_Message(const std::string& text, const cmd_Place* place)
{
    std::string message = Clipped(app_OnOneLine(text));
    if (!place)
        return message;
    const std::string marked = cmd_Marked(*place);
    const std::size_t lineEnd = marked.find('\n');
    return message + "\n  " + marked.substr(0, lineEnd) + "\n  " + marked.substr(lineEnd + 1);
}
