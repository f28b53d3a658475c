#include "app_Path.h"

#include "app_Error.h"

#include <cctype>

namespace
{

/// Reads a path from left to right.
class PathReader
{
public:
    explicit PathReader(const std::string& text) : text(text) {}

    app_Path Read()
    {
        app_Path path;
        path.repositoryWord = Word();
        Expect('[');
        path.name = Quoted();
        Expect(']');
        while (position < text.size())
            path.steps.push_back(Step());
        return path;
    }

private:
    [[noreturn]] void Raise(const std::string& expected) const
    {
        throw app_Error("path " + text + ": expected " + expected + " at character " +
                        std::to_string(position + 1) + ", as in amplitudes['ramp'].data");
    }

    char Next() const { return position < text.size() ? text[position] : '\0'; }

    void Expect(char c)
    {
        if (Next() != c)
            Raise(std::string("\"") + c + '"');
        ++position;
    }

    std::string Word()
    {
        const std::size_t begin = position;
        while (std::isalnum(static_cast<unsigned char>(Next())) || Next() == '_')
            ++position;
        if (position == begin)
            Raise("a word");
        return text.substr(begin, position - begin);
    }

    std::string Quoted()
    {
        const char quote = Next();
        if (quote != '\'' && quote != '"')
            Raise("a name in quotes");
        ++position;
        std::string name;
        while (Next() != quote)
        {
            if (Next() == '\\')
                ++position;
            if (position >= text.size())
                Raise("the closing quote");
            name += text[position++];
        }
        ++position;
        return name;
    }

    app_Path::Step Step()
    {
        if (Next() == '.')
        {
            ++position;
            return {app_Path::Step::Sort::Word, Word()};
        }
        Expect('[');
        app_Path::Step step{};
        if (std::isdigit(static_cast<unsigned char>(Next())))
            step = Position();
        else
            step = {app_Path::Step::Sort::Key, Quoted()};
        Expect(']');
        return step;
    }

    app_Path::Step Position()
    {
        const std::size_t begin = position;
        std::size_t number = 0;
        for (; std::isdigit(static_cast<unsigned char>(Next())); ++position)
        {
            if (position - begin == 9)
                Raise("a position of at most nine digits");
            number = number * 10 + static_cast<std::size_t>(Next() - '0');
        }
        return {app_Path::Step::Sort::Position, text.substr(begin, position - begin), number};
    }

    const std::string& text;
    std::size_t position = 0;
};

std::string StepText(const app_Path::Step& step)
{
    switch (step.sort)
    {
    case app_Path::Step::Sort::Word:
        return '.' + step.text;
    case app_Path::Step::Sort::Position:
        return '[' + step.text + ']';
    case app_Path::Step::Sort::Key:
        break;
    }
    return app_PathOf("", step.text);
}

cls_Value* Member(cls_Value& value, const std::string& name)
{
    cls_Value::Object* const members = value.AsObject();
    if (!members)
        return nullptr;
    for (auto& [memberName, member] : *members)
    {
        if (memberName == name)
            return &member;
    }
    return nullptr;
}

cls_Value* Element(cls_Value& value, std::size_t position)
{
    cls_Value::Array* const elements = value.AsArray();
    return elements && position < elements->size() ? &(*elements)[position] : nullptr;
}

cls_Value* MemberByWord(cls_Value& value, const std::string& word, const std::string& where)
{
    const cls_Description* const description = app_ClassOfValue(value);
    if (!description)
        return nullptr;
    return Member(value, app_FindAttribute(*description, word, where).field.Name().CString());
}

} // namespace

std::string app_Path::Text(std::size_t count) const
{
    std::string text = app_PathOf(repositoryWord, name);
    for (std::size_t i = 0; i < count; ++i)
        text += StepText(steps[i]);
    return text;
}

app_Path app_ParsePath(const std::string& text)
{
    return PathReader(text).Read();
}

app_Object app_FindObject(const ddr_Model& model, const app_Path& path)
{
    const mdl_NamedObjects& repository = app_ConstRepository(model, path.repositoryWord);
    const void* const object = repository.ConstObject(path.name);
    if (!object)
        throw app_Error(path.Text(0) + ": there is no such object, expected one of the " +
                        std::to_string(repository.ObjectNames().size()) + " names in " + path.repositoryWord);
    return {path.repositoryWord, path.name, app_ActualClass(repository.ObjectRoot(), object), object};
}

const cls_Attribute& app_FindAttribute(const cls_Description& description, const std::string& word,
                                       const std::string& where)
{
    const cls_Attribute* attribute = description.FindByWord(word);
    if (!attribute)
        attribute = description.FindByName(word);
    if (attribute)
        return *attribute;
    std::string words;
    for (const cls_Attribute* known : description.AllAttributes())
        words += (words.empty() ? "" : ", ") + std::string(known->word);
    throw app_Error(where + ": a " + description.Name() + " has no attribute " + word +
                    ", expected one of: " + words);
}

cls_Value& app_FindValue(cls_Value& value, const app_Path& path)
{
    cls_Value* found = &value;
    for (std::size_t i = 0; i < path.steps.size(); ++i)
    {
        const app_Path::Step& step = path.steps[i];
        cls_Value* next = nullptr;
        if (step.sort == app_Path::Step::Sort::Word)
            next = MemberByWord(*found, step.text, path.Text(i));
        else if (step.sort == app_Path::Step::Sort::Key)
            next = Member(*found, step.text);
        else
            next = Element(*found, step.position);
        if (!next)
            throw app_Error(path.Text(i) + " is " + found->Summary() + ": nothing stands there at " +
                            StepText(step));
        found = next;
    }
    return *found;
}
