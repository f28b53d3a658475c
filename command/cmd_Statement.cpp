#include "cmd_Statement.h"

#include "cmd_Error.h"
#include "cmd_Utf8.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace
{

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsWordStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

int HexDigit(char c)
{
    if (IsDigit(c))
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

/// Values within values; far above any use, far below what the stack holds.
constexpr int deepest = 100;

/// Reads a line from left to right.
class Reader
{
public:
    explicit Reader(const std::string& text) : text(text) {}

    cmd_Statement Statement()
    {
        cmd_Statement statement;
        if (AtEnd())
            return statement;
        const std::size_t begin = position;
        if (IsWordStart(Peek()) && Word("a command") == "del")
        {
            statement.sort = cmd_Statement::Sort::Deletion;
            statement.path = Path(true);
        }
        else
        {
            position = begin;
            ReadCommand(statement);
        }
        RequireEnd();
        return statement;
    }

    cmd_Path WholePath()
    {
        cmd_Path path = Path(false);
        RequireEnd();
        return path;
    }

    cmd_Value WholeValue()
    {
        cmd_Value value = Value();
        RequireEnd();
        return value;
    }

private:
    /// The next character that is no blank; null at the end.
    char Peek()
    {
        while (position < text.size() && (text[position] == ' ' || text[position] == '\t'))
            ++position;
        return Here();
    }

    char Here() const { return position < text.size() ? text[position] : '\0'; }

    /// At the end of the line or before a comment.
    bool AtEnd()
    {
        const char next = Peek();
        return position >= text.size() || next == '#' || next == '\n' || next == '\r';
    }

    bool Take(char c)
    {
        if (Peek() != c || position >= text.size())
            return false;
        ++position;
        return true;
    }

    void Expect(char c)
    {
        if (!Take(c))
            RaiseExpected(std::string("\"") + c + '"');
    }

    void RequireEnd()
    {
        if (!AtEnd())
            RaiseExpected("the end of the line");
    }

    [[noreturn]] void RaiseExpected(const std::string& expected)
    {
        Raise("expected " + expected + ", found " + (AtEnd() ? "the end of the line" : Rest()));
    }

    [[noreturn]] void Raise(const std::string& fault) const
    {
        std::size_t column = 1;
        for (std::size_t i = 0; i < std::min(position, text.size()); ++i)
            column += cmd_IsCharacterStart(text, i);
        throw cmd_Error("column " + std::to_string(column) + ": " + fault, {text, position, position});
    }

    /// What stands here, in short.
    std::string Rest() const
    {
        constexpr std::size_t longest = 20;
        std::size_t end = std::min(position + longest, text.size());
        while (!cmd_IsCharacterStart(text, end))
            --end;
        return cmd_QuotedText(text.substr(position, end - position) + (end < text.size() ? "..." : ""));
    }

    std::string Word(const char* expected)
    {
        if (!IsWordStart(Peek()))
            RaiseExpected(expected);
        const std::size_t begin = position;
        while (IsWordStart(Here()) || IsDigit(Here()))
            ++position;
        return text.substr(begin, position - begin);
    }

    /// `begin` followed by steps, or only steps where the first word need not be "model".
    cmd_Path Path(bool needsModel)
    {
        cmd_Path path;
        Peek();
        const std::size_t begin = position;
        const std::string first = Word("a path, as model.amplitudes['ramp']");
        if (first != "model")
        {
            if (needsModel)
            {
                position = begin;
                RaiseExpected("a path, as model.amplitudes['ramp']");
            }
            path.steps.push_back({cmd_Path::Step::Sort::Word, first});
        }
        for (;;)
        {
            if (Take('.'))
                path.steps.push_back({cmd_Path::Step::Sort::Word, Word("a word")});
            else if (Take('['))
                path.steps.push_back(Subscript());
            else
                return path;
        }
    }

    cmd_Path::Step Subscript()
    {
        cmd_Path::Step step{};
        const char next = Peek();
        if (next == '\'' || next == '"')
            step = {cmd_Path::Step::Sort::Key, QuotedText()};
        else if (IsDigit(next))
            step = {cmd_Path::Step::Sort::Position, "", Position()};
        else
            RaiseExpected("a name in quotes or a position");
        Expect(']');
        return step;
    }

    std::size_t Position()
    {
        std::uint32_t number = 0;
        const char* const begin = text.data() + position;
        const auto [end, fault] = std::from_chars(begin, text.data() + text.size(), number);
        if (fault != std::errc())
            Raise("expected a position of at most 4294967295");
        position += static_cast<std::size_t>(end - begin);
        return number;
    }

    void ReadCommand(cmd_Statement& statement)
    {
        statement.path = Path(true);
        if (Peek() == '(')
        {
            statement.sort = cmd_Statement::Sort::Call;
            statement.word = TakeLastWord(statement.path, "a word before the arguments");
            statement.arguments = Arguments();
        }
        else if (Take('='))
        {
            statement.sort = cmd_Statement::Sort::Assignment;
            statement.word = TakeLastWord(statement.path, "a path that ends with the word of an attribute");
            statement.value = Value();
        }
        else
            statement.sort = cmd_Statement::Sort::Value;
    }

    std::string TakeLastWord(cmd_Path& path, const char* expected)
    {
        if (path.steps.empty() || path.steps.back().sort != cmd_Path::Step::Sort::Word)
            Raise(std::string("expected ") + expected + ", found " + path.Text());
        std::string word = path.steps.back().text;
        path.steps.pop_back();
        return word;
    }

    cmd_Arguments Arguments()
    {
        cmd_Arguments arguments;
        Expect('(');
        while (!Take(')'))
        {
            const std::string word = Word("a word and its value, as smooth=0.25");
            Expect('=');
            const auto isSame = [&word](const auto& given) { return given.first == word; };
            if (std::any_of(arguments.begin(), arguments.end(), isSame))
                Raise("the word " + word + " is given twice");
            arguments.emplace_back(word, Value());
            if (Peek() != ')')
                Expect(',');
        }
        return arguments;
    }

    cmd_Value Value()
    {
        if (depth == deepest)
            Raise("values are nested more than " + std::to_string(deepest) + " deep");
        ++depth;
        cmd_Value value = ValueAtDepth();
        --depth;
        return value;
    }

    cmd_Value ValueAtDepth()
    {
        const char next = Peek();
        if (next == '\'' || next == '"')
            return QuotedText();
        if (IsDigit(next) || next == '-' || next == '+' || next == '.')
            return Number();
        if (next == '(')
            return TupleOrGroup();
        if (next == '[')
            return cmd_Value::List{Elements('[', ']')};
        if (next == '{')
            return Dictionary();
        const std::string word = Word("a value");
        if (word == "float" && Peek() == '(')
            return SpecialNumber();
        if (Peek() == '(')
            return cmd_Value::Call{word, Arguments()};
        if (word == "None")
            return cmd_Value();
        if (word == "True" || word == "False")
            return word == "True";
        return cmd_Value::Symbol{word};
    }

    /// "(a)" is a, as in Python; "(a,)" is a tuple.
    cmd_Value TupleOrGroup()
    {
        cmd_Value::Elements elements = Elements('(', ')');
        if (elements.size() == 1 && !endedByComma)
            return elements.front();
        return cmd_Value::Tuple{std::move(elements)};
    }

    cmd_Value::Elements Elements(char open, char close)
    {
        cmd_Value::Elements elements;
        Expect(open);
        bool comma = false;
        while (!Take(close))
        {
            if (!elements.empty() && !comma)
                RaiseExpected(std::string("\",\" or \"") + close + '"');
            elements.push_back(Value());
            comma = Take(',');
        }
        endedByComma = comma;
        return elements;
    }

    cmd_Value Dictionary()
    {
        cmd_Value::Dictionary entries;
        Expect('{');
        while (!Take('}'))
        {
            std::string key = IsDigit(Peek()) || Here() == '-' ? IntegerText() : QuotedText();
            Expect(':');
            entries.emplace_back(std::move(key), Value());
            if (Peek() != '}')
                Expect(',');
        }
        return entries;
    }

    std::string IntegerText()
    {
        const cmd_Value number = Number();
        if (!number.AsInteger())
            Raise("expected a text in quotes or an integer before \":\"");
        return number.Text();
    }

    cmd_Value Number()
    {
        const std::size_t begin = position;
        if (Here() == '+' || Here() == '-')
            ++position;
        const std::size_t digits = position;
        while (IsDigit(Here()))
            ++position;
        const bool isInteger = position > digits && Here() != '.' && Here() != 'e' && Here() != 'E';
        position = begin + (text[begin] == '+' ? 1 : 0);
        return isInteger ? cmd_Value(Taken<std::int64_t>("an integer of 64 bits"))
                         : cmd_Value(Taken<double>("a number that a double can hold"));
    }

    template <class T>
    T Taken(const char* expected)
    {
        T number{};
        const char* const begin = text.data() + position;
        const auto [end, fault] = std::from_chars(begin, text.data() + text.size(), number);
        // from_chars also takes "inf" and "nan", which are no numbers in a script.
        if (fault != std::errc() || !(IsDigit(end[-1]) || end[-1] == '.'))
            RaiseExpected(expected);
        position += static_cast<std::size_t>(end - begin);
        if (IsWordStart(Here()) || IsDigit(Here()))
            RaiseExpected("the end of the number");
        return number;
    }

    /// "float('nan')" and its like.
    cmd_Value SpecialNumber()
    {
        Expect('(');
        const std::size_t begin = position;
        const std::string name = QuotedText();
        double number = 0.0;
        if (name == "nan")
            number = std::numeric_limits<double>::quiet_NaN();
        else if (name == "inf" || name == "-inf")
            number = std::numeric_limits<double>::infinity() * (name == "inf" ? 1.0 : -1.0);
        else
        {
            position = begin;
            RaiseExpected("'nan', 'inf' or '-inf'");
        }
        Expect(')');
        return number;
    }

    std::string QuotedText()
    {
        const char quote = Peek();
        if (quote != '\'' && quote != '"')
            RaiseExpected("a text in quotes");
        ++position;
        std::string result;
        while (position < text.size() && Here() != quote)
        {
            if (Here() == '\\')
                AppendEscape(result);
            else if (Here() == '\0')
                RaiseNull();
            else
                result += text[position++];
        }
        if (position >= text.size())
            Raise(std::string("expected the closing ") + quote + ", found the end of the line");
        ++position;
        return result;
    }

    [[noreturn]] void RaiseNull() const { Raise("no text can hold a null character"); }

    void AppendEscape(std::string& result)
    {
        static constexpr char letters[] = "\\'\"nrtabfv";
        static constexpr char meanings[] = "\\'\"\n\r\t\a\b\f\v";
        ++position;
        const char letter = Here();
        const char* const found =
            letter == '\0' ? nullptr : std::find(letters, std::end(letters) - 1, letter);
        if (found && found != std::end(letters) - 1)
        {
            result += meanings[found - letters];
            ++position;
            return;
        }
        const int digits = letter == 'x' ? 2 : letter == 'u' ? 4 : letter == 'U' ? 8 : 0;
        if (digits == 0)
            RaiseExpected("one of \\ ' \" n r t a b f v x u U behind a backslash");
        ++position;
        AppendCode(result, digits);
    }

    void AppendCode(std::string& result, int digits)
    {
        char32_t code = 0;
        for (int i = 0; i < digits; ++i, ++position)
        {
            const int digit = HexDigit(Here());
            if (digit < 0 || code > 0xFFFFFF)
                Raise("expected " + std::to_string(digits) + " hexadecimal digits of a character");
            code = code * 16 + static_cast<char32_t>(digit);
        }
        if (code == 0)
            RaiseNull();
        // The form in which Python writes a byte that is not UTF-8.
        if (code >= 0xDC80 && code <= 0xDCFF)
        {
            result += static_cast<char>(code & 0xFF);
            return;
        }
        if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
            Raise("no character has this number");
        cmd_AppendCharacter(result, code);
    }

    const std::string& text;
    std::size_t position = 0;
    int depth = 0;
    /// Whether the elements read last had a comma behind them.
    bool endedByComma = false;
};

} // namespace

cmd_Statement cmd_ParseStatement(const std::string& line)
{
    return Reader(line).Statement();
}

cmd_Path cmd_ParsePath(const std::string& text)
{
    return Reader(text).WholePath();
}

cmd_Value cmd_ParseValue(const std::string& text)
{
    return Reader(text).WholeValue();
}
