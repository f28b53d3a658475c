#include "ddr_PathText.h"

#include <cctype>
#include <charconv>
#include <optional>

namespace
{

/// Reads one step.
class StepReader
{
public:
    StepReader(const std::string& path, std::size_t begin, ddr_PathFault& fault)
        : path(path), position(begin), fault(fault)
    {}

    std::vector<ddr_PathStep> Read()
    {
        if (position == 0 && Next() != '[')
            return Word();
        if (Next() == '.')
        {
            ++position;
            return Word();
        }
        if (Next() != '[')
            return Refuse("\".\" or \"[\"");
        ++position;
        switch (Next())
        {
        case '\'':
            return PlainKeys();
        case '"':
            return EscapedKey();
        default:
            return Index();
        }
    }

private:
    char Next() const { return At(position); }
    char At(std::size_t place) const { return place < path.size() ? path[place] : '\0'; }

    std::vector<ddr_PathStep> Refuse(const std::string& expected)
    {
        fault = {position, expected};
        return {};
    }

    std::vector<ddr_PathStep> Word()
    {
        const std::size_t begin = position;
        while (std::isalnum(static_cast<unsigned char>(Next())) || Next() == '_')
            ++position;
        if (position == begin)
            return Refuse("a word");
        return {{ddr_PathStep::Sort::Word, path.substr(begin, position - begin), 0, position}};
    }

    std::vector<ddr_PathStep> PlainKeys()
    {
        std::vector<ddr_PathStep> steps;
        const std::size_t begin = position + 1;
        for (std::size_t end = path.find("']", begin); end != std::string::npos;
             end = path.find("']", end + 1))
        {
            const char behind = At(end + 2);
            if (end + 2 == path.size() || behind == '.' || behind == '[')
                steps.push_back({ddr_PathStep::Sort::Key, path.substr(begin, end - begin), 0, end + 2});
        }
        if (!steps.empty())
            return steps;
        position = path.size();
        return Refuse("\"']\" at the end of the key");
    }

    std::vector<ddr_PathStep> EscapedKey()
    {
        std::string key;
        ++position;
        while (Next() != '"')
        {
            if (position >= path.size())
                return Refuse("\"\"]\" at the end of the key");
            if (Next() != '\\')
                key += path[position++];
            else if (!Escape(key))
                return Refuse("an escape that Python has for texts");
        }
        ++position;
        if (Next() != ']')
            return Refuse("\"]\"");
        return {{ddr_PathStep::Sort::Key, key, 0, position + 1}};
    }

    /// Takes the escape at the position; false if it is none, and the position stays.
    bool Escape(std::string& key)
    {
        static constexpr std::string_view names = "\\'\"nrt";
        static constexpr std::string_view meanings = "\\'\"\n\r\t";
        const char name = At(position + 1);
        if (const std::size_t known = names.find(name); name != '\0' && known != std::string_view::npos)
        {
            key += meanings[known];
            position += 2;
            return true;
        }
        const std::size_t digits = name == 'x' ? 2 : name == 'u' ? 4 : 0;
        const std::optional<unsigned> code = Hexadecimal(position + 2, digits);
        if (!code || !AppendCharacter(key, *code))
            return false;
        position += 2 + digits;
        return true;
    }

    std::optional<unsigned> Hexadecimal(std::size_t begin, std::size_t digits) const
    {
        unsigned number = 0;
        if (digits == 0 || begin + digits > path.size())
            return std::nullopt;
        const char* const end = path.data() + begin + digits;
        const auto result = std::from_chars(path.data() + begin, end, number, 16);
        if (result.ec != std::errc() || result.ptr != end)
            return std::nullopt;
        return number;
    }

    /// A character of the basic plane in UTF-8. The lone surrogates U+DC80 to U+DCFF stand for single bytes;
    /// other surrogates and the null character are none.
    static bool AppendCharacter(std::string& key, unsigned code)
    {
        const bool isByte = code >= 0xDC80 && code <= 0xDCFF;
        if (code == 0 || (code >= 0xD800 && code <= 0xDFFF && !isByte))
            return false;
        if (isByte || code < 0x80)
        {
            key += static_cast<char>(code & 0xFF);
            return true;
        }
        if (code < 0x800)
            key += static_cast<char>(0xC0 | code >> 6);
        else
        {
            key += static_cast<char>(0xE0 | code >> 12);
            key += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        }
        key += static_cast<char>(0x80 | (code & 0x3F));
        return true;
    }

    std::vector<ddr_PathStep> Index()
    {
        int number = 0;
        const auto result = std::from_chars(path.data() + position, path.data() + path.size(), number);
        if (result.ec != std::errc())
            return Refuse("a key in quotes or a whole number of 32 bits");
        position = static_cast<std::size_t>(result.ptr - path.data());
        if (Next() != ']')
            return Refuse("\"]\"");
        return {{ddr_PathStep::Sort::Index, {}, number, position + 1}};
    }

    const std::string& path;
    std::size_t position;
    ddr_PathFault& fault;
};

} // namespace

std::vector<ddr_PathStep> ddr_PathStepsAt(const std::string& path, std::size_t position, ddr_PathFault& fault)
{
    return StepReader(path, position, fault).Read();
}
