#include "cmd_Locate.h"

#include "cmd_Attributes.h"
#include "cmd_Error.h"
#include "ddr_ShortcutRegistry.h"
#include "mdl_Repository.h"

namespace
{

using Sort = cmd_Path::Step::Sort;

/// The step of this number, in the path as it is written in full.
cmd_Place PlaceOf(const cmd_Path& path, std::size_t step)
{
    return {path.Text(), path.Text(step).size(), path.Text(step + 1).size()};
}

[[noreturn]] void RaiseNoRepository(const ddr_Model& model, const std::string& word)
{
    const cmd_Path path = cmd_Path().WithWord(word);
    throw cmd_Error(path.Text() + ": a model has no such repository, " +
                        cmd_ExpectedOneOf(word, cmd_RepositoryWords(model)),
                    PlaceOf(path, 0));
}

std::vector<std::string> QuotedNames(const std::vector<std::string>& names)
{
    std::vector<std::string> quoted;
    for (const std::string& name : names)
        quoted.push_back(cmd_QuotedText(name));
    return quoted;
}

/// Names are many, so only a near one is told.
[[noreturn]] void RaiseNoObject(const mdl_NamedObjects& repository, const cmd_Path& path)
{
    const std::string nearest = cmd_Nearest(path.steps[1].text, repository.ObjectNames());
    std::string message = path.Text(2) + ": there is no such object";
    if (!nearest.empty())
        message += "; did you mean " + cmd_QuotedText(nearest) + '?';
    throw cmd_Error(message, PlaceOf(path, 1));
}

[[noreturn]] void RaiseNoWord(const cls_Description& owner, const cmd_Path& path, std::size_t step)
{
    const std::string& word = path.steps[step].text;
    std::vector<std::string> words;
    for (const cls_Attribute* known : owner.AllAttributes())
        words.emplace_back(known->word);
    throw cmd_Error(path.Text(step + 1) + ": " + owner.Name() + " has no such word, " +
                        cmd_ExpectedOneOf(word, words),
                    PlaceOf(path, step));
}

/// Where a step leads from an object.
struct Taken
{
    /// Null where it leads back to the object.
    const cls_Attribute* attribute;
    /// How many steps of the path it is.
    std::size_t steps;
};

/// The attribute to which the path leads on from an object: by its word, or by a word and a key as in
/// .options['plastic'].
Taken TakeAttribute(const cls_Description& owner, const cmd_Path& path, std::size_t step)
{
    const std::string& word = path.steps[step].text;
    if (const cls_Attribute* attribute = owner.FindByWord(word))
        return {attribute, 1};
    const ddr_StepClass* byKey = ddr_Shortcuts().FindAttributeStep(owner, word);
    if (!byKey)
        RaiseNoWord(owner, path, step);
    if (step + 1 == path.steps.size() || path.steps[step + 1].sort != Sort::Key)
        throw cmd_Error(path.Text(step + 1) + ": expected a name behind it, as " + path.Text(step + 1) +
                            "['name']",
                        PlaceOf(path, step));
    try
    {
        return {byKey->attributeOf(owner, path.steps[step + 1].text.c_str()), 2};
    }
    catch (const nex_CmdException<atr_String, 2>& error)
    {
        throw cmd_Error(path.Text(step + 2) + ": " + error.what(), PlaceOf(path, step + 1));
    }
}

/// Walks from the plain value of an object into it, and knows on the way which attribute it is in.
class Walk
{
public:
    Walk(cls_Value& object, const cmd_Path& path) : path(path), value(&object) {}

    void Run()
    {
        for (count = 2; count < path.steps.size(); ++count)
            Go(path.steps[count]);
    }

    cls_Value& Value() const { return *value; }

    cmd_Value Script() const
    {
        if (cmd_ClassOfValue(*value))
            return cmd_ScriptOfObject(*value);
        return attribute ? cmd_ScriptOfAttribute(*owner, *attribute, *value) : cmd_ValueOfPlain(*value);
    }

private:
    void Go(const cmd_Path::Step& step)
    {
        switch (step.sort)
        {
        case Sort::Word:
            return GoToWord(step.text);
        case Sort::Key:
            return GoToKey(step.text);
        case Sort::Position:
            return GoToPosition(step.position);
        }
    }

    [[noreturn]] void Raise(const std::string& expected) const
    {
        throw cmd_Error(path.Text(count) + ": expected " + expected + ", found " + Script().Summary(),
                        PlaceOf(path, count));
    }

    void GoToWord(const std::string& word)
    {
        const cls_Description* inner = cmd_ClassOfValue(*value);
        if (!inner && attribute && attribute->kind->Id() == cls_KindEnm::Table && GoToMember(word))
            return;
        if (!inner)
            Raise("an object with a word " + word);
        owner = inner;
        const Taken taken = TakeAttribute(*owner, path, count);
        count += taken.steps - 1;
        if (!taken.attribute)
            return;
        attribute = taken.attribute;
        GoToMember(attribute->field.Name().CString());
    }

    bool GoToMember(const std::string& name)
    {
        cls_Value::Object* members = value->AsObject();
        if (!members)
            return false;
        for (auto& [memberName, member] : *members)
        {
            if (memberName == name)
            {
                value = &member;
                return true;
            }
        }
        return false;
    }

    void GoToKey(const std::string& key)
    {
        if (!value->AsObject() || cmd_ClassOfValue(*value))
            Raise("a dictionary");
        std::vector<std::string> keys;
        for (const auto& [name, member] : *value->AsObject())
            keys.push_back(name);
        if (!GoToMember(key))
            throw cmd_Error(path.Text(count + 1) + ": there is no such entry, " +
                                cmd_ExpectedOneOf(cmd_QuotedText(key), QuotedNames(keys)),
                            PlaceOf(path, count));
    }

    void GoToPosition(std::size_t position)
    {
        // The rows of a table are its elements, whatever else it has.
        if (attribute && attribute->kind->Id() == cls_KindEnm::Table && value->AsObject())
            GoToMember("table");
        cls_Value::Array* elements = value->AsArray();
        if (!elements)
            Raise("a sequence");
        if (position >= elements->size())
            throw cmd_Error(path.Text(count + 1) + ": there is no such element, " +
                                (elements->empty() ? "the sequence is empty"
                                                   : "expected a position from 0 to " +
                                                         std::to_string(elements->size() - 1)),
                            PlaceOf(path, count));
        value = &(*elements)[position];
    }

    const cmd_Path& path;
    cls_Value* value;
    std::size_t count = 2;
    const cls_Description* owner = nullptr;
    const cls_Attribute* attribute = nullptr;
};

} // namespace

std::vector<std::string> cmd_RepositoryWords(const ddr_Model& model)
{
    std::vector<std::string> words;
    for (const char* word : ddr_Model::Slots())
    {
        if (dynamic_cast<const mdl_NamedObjects*>(model.ConstGet(word)))
            words.emplace_back(word);
    }
    return words;
}

const mdl_NamedObjects& cmd_ConstRepository(const ddr_Model& model, const std::string& word)
{
    const auto* repository = dynamic_cast<const mdl_NamedObjects*>(model.ConstGet(word.c_str()));
    if (!repository)
        RaiseNoRepository(model, word);
    return *repository;
}

mdl_NamedObjects& cmd_Repository(ddr_Model& model, const std::string& word)
{
    auto* repository = dynamic_cast<mdl_NamedObjects*>(model.Get(word.c_str()));
    if (!repository)
        RaiseNoRepository(model, word);
    return *repository;
}

cmd_Located cmd_Locate(const ddr_Model& model, const cmd_Path& path)
{
    if (path.steps.size() < 2 || path.steps[0].sort != Sort::Word || path.steps[1].sort != Sort::Key)
        throw cmd_Error(path.Text() + ": expected the path of an object, as model.amplitudes['ramp']");
    const mdl_NamedObjects& repository = cmd_ConstRepository(model, path.steps[0].text);
    const void* object = repository.ConstObject(path.steps[1].text);
    if (!object)
        RaiseNoObject(repository, path);
    const unsigned id = repository.ObjectRoot().Info().dynTypeId(object);
    const cls_Description* description = cls_Descriptions().Find(id);
    if (!description)
        throw cmd_Error(path.Text(2) + ": the class of the object is not known, its id is " +
                        std::to_string(id));
    return {*description, object};
}

cls_Value& cmd_FindWithin(cls_Value& object, const cmd_Path& path)
{
    Walk walk(object, path);
    walk.Run();
    return walk.Value();
}

const cls_Attribute& cmd_AttributeAt(const cls_Description& description, const cmd_Path& path)
{
    const cls_Attribute* attribute = TakeAttribute(description, path, 2).attribute;
    if (!attribute)
        throw cmd_Error(path.Text(4) + ": this is the object itself, expected a part of it",
                        PlaceOf(path, 2));
    return *attribute;
}

cmd_Value cmd_ScriptWithin(const cls_Value& object, const cmd_Path& path)
{
    cls_Value copy = object;
    Walk walk(copy, path);
    walk.Run();
    return walk.Script();
}
