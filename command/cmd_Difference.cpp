#include "cmd_Difference.h"

#include "cmd_Attributes.h"
#include "cmd_Locate.h"
#include "mdl_Repository.h"

#include <cmath>
#include <unordered_set>

namespace
{

bool AreSame(const cls_Value& left, const cls_Value& right)
{
    const double* leftNumber = left.AsDouble();
    const double* rightNumber = right.AsDouble();
    if (leftNumber && rightNumber)
        return *leftNumber == *rightNumber && std::signbit(*leftNumber) == std::signbit(*rightNumber);
    const cls_Value::Array* leftArray = left.AsArray();
    const cls_Value::Array* rightArray = right.AsArray();
    if (leftArray && rightArray)
    {
        if (leftArray->size() != rightArray->size())
            return false;
        for (std::size_t i = 0; i < leftArray->size(); ++i)
        {
            if (!AreSame((*leftArray)[i], (*rightArray)[i]))
                return false;
        }
        return true;
    }
    const cls_Value::Object* leftObject = left.AsObject();
    const cls_Value::Object* rightObject = right.AsObject();
    if (leftObject && rightObject)
    {
        if (leftObject->size() != rightObject->size())
            return false;
        for (std::size_t i = 0; i < leftObject->size(); ++i)
        {
            if ((*leftObject)[i].first != (*rightObject)[i].first ||
                !AreSame((*leftObject)[i].second, (*rightObject)[i].second))
                return false;
        }
        return true;
    }
    return left == right;
}

/// Gathers the attributes that differ between two values of one object.
class AttributeComparison
{
public:
    void CompareObjects(const cls_Description& description, const cls_Value& before, const cls_Value& after,
                        const std::string& prefix)
    {
        for (const cls_Attribute* attribute : description.AllAttributes())
        {
            const char* name = attribute->field.Name().CString();
            Compare({description, *attribute}, *before.Find(name), *after.Find(name),
                    prefix + attribute->word);
        }
    }

    std::vector<cmd_AttributeDifference> found;

private:
    struct Place
    {
        const cls_Description& description;
        const cls_Attribute& attribute;
    };

    void Compare(const Place& place, const cls_Value& before, const cls_Value& after,
                 const std::string& words)
    {
        if (AreSame(before, after))
            return;
        const cls_Description* description = cmd_ClassOfValue(before);
        const cls_KindEnm kind = place.attribute.kind->Id();
        const bool isMap = kind == cls_KindEnm::MapObject || kind == cls_KindEnm::MapObjectInt;
        if (description && description == cmd_ClassOfValue(after))
            CompareObjects(*description, before, after, words + '.');
        else if (isMap && !description && before.AsObject() && after.AsObject())
            CompareEntries(place, before, after, words);
        else if (kind == cls_KindEnm::ListObject && HaveOneLength(before, after))
            CompareElements(place, before, after, words);
        else
            found.push_back({words, before, after,
                             cmd_ScriptOfAttribute(place.description, place.attribute, before),
                             cmd_ScriptOfAttribute(place.description, place.attribute, after)});
    }

    static bool HaveOneLength(const cls_Value& before, const cls_Value& after)
    {
        return before.AsArray() && after.AsArray() && before.AsArray()->size() == after.AsArray()->size();
    }

    void CompareElements(const Place& place, const cls_Value& before, const cls_Value& after,
                         const std::string& words)
    {
        for (std::size_t i = 0; i < before.AsArray()->size(); ++i)
            Compare(place, (*before.AsArray())[i], (*after.AsArray())[i],
                    words + '[' + std::to_string(i) + ']');
    }

    void CompareEntries(const Place& place, const cls_Value& before, const cls_Value& after,
                        const std::string& words)
    {
        const auto step = [&words](const std::string& key)
        { return words + '[' + cmd_QuotedText(key) + ']'; };
        for (const auto& [key, entry] : *before.AsObject())
        {
            const cls_Value* other = after.Find(key);
            Compare(place, entry, other ? *other : cls_Value(), step(key));
        }
        for (const auto& [key, entry] : *after.AsObject())
        {
            if (!before.Find(key))
                Compare(place, cls_Value(), entry, step(key));
        }
    }
};

const cls_Description& ClassOf(const mdl_NamedObjects& repository, const void* object)
{
    const cls_Description& root = repository.ObjectRoot();
    const cls_Description* actual = cls_Descriptions().Find(root.Info().dynTypeId(object));
    return actual ? *actual : root;
}

/// Compares the repositories of one word; either may be missing.
class RepositoryComparison
{
public:
    RepositoryComparison(const std::string& word, const mdl_NamedObjects* before,
                         const mdl_NamedObjects* after, std::vector<cmd_ObjectDifference>& found)
        : word(word), before(before), after(after), found(found)
    {}

    void Run()
    {
        const std::vector<std::string> oldNames = NamesOf(before);
        const std::vector<std::string> currentNames = NamesOf(after);
        const Names oldSet(oldNames.begin(), oldNames.end());
        const Names currentSet(currentNames.begin(), currentNames.end());
        for (const std::string& name : oldNames)
            CompareObject(name, currentSet);
        for (const std::string& name : currentNames)
        {
            if (const void* object = ObjectOf(after, name, currentSet);
                object && !ObjectOf(before, name, oldSet))
                Add(cmd_ObjectDifference::Sort::Added, name, ClassOf(*after, object));
        }
    }

private:
    using Names = std::unordered_set<std::string>;

    static std::vector<std::string> NamesOf(const mdl_NamedObjects* repository)
    {
        return repository ? repository->ObjectNames() : std::vector<std::string>();
    }

    /// The object of this very name: a repository also answers to names that sort as equal.
    static const void* ObjectOf(const mdl_NamedObjects* repository, const std::string& name,
                                const Names& names)
    {
        return names.count(name) != 0 ? repository->ConstObject(name) : nullptr;
    }

    void CompareObject(const std::string& name, const Names& currentSet)
    {
        const void* old = before->ConstObject(name);
        const void* current = ObjectOf(after, name, currentSet);
        if (old == current || !old)
            return;
        const cls_Description& description = ClassOf(*before, old);
        if (!current)
            return Add(cmd_ObjectDifference::Sort::Removed, name, description);
        if (const cls_Description& other = ClassOf(*after, current); &other != &description)
        {
            Add(cmd_ObjectDifference::Sort::Removed, name, description);
            return Add(cmd_ObjectDifference::Sort::Added, name, other);
        }
        AttributeComparison attributes;
        attributes.CompareObjects(description, description.Export(old), description.Export(current), "");
        if (attributes.found.empty())
            return;
        Add(cmd_ObjectDifference::Sort::Changed, name, description);
        found.back().attributes = std::move(attributes.found);
    }

    void Add(cmd_ObjectDifference::Sort sort, const std::string& name, const cls_Description& description)
    {
        found.push_back({sort, cmd_Path::OfObject(word, name), description.Name(), {}});
    }

    const std::string word;
    const mdl_NamedObjects* before;
    const mdl_NamedObjects* after;
    std::vector<cmd_ObjectDifference>& found;
};

/// Two values that differ in a line of output: whole if they are short, else by the first place where they
/// differ.
std::string ChangeText(const cmd_Value& before, const cmd_Value& after)
{
    const std::string summary = before.Summary();
    const cmd_Value::Elements* old = before.AsElements();
    const cmd_Value::Elements* current = after.AsElements();
    const bool isShort = summary == before.Text() && after.Summary() == after.Text();
    if (isShort || !old || !current || old->size() != current->size())
        return summary + " -> " + after.Summary();
    for (std::size_t i = 0; i < old->size(); ++i)
    {
        const std::string place = '[' + std::to_string(i) + ']';
        if ((*old)[i].Text() != (*current)[i].Text())
            return summary + ", first at " + place + ": " + ChangeText((*old)[i], (*current)[i]);
    }
    return summary;
}

const char* SignOf(cmd_ObjectDifference::Sort sort)
{
    switch (sort)
    {
    case cmd_ObjectDifference::Sort::Added:
        return "+ ";
    case cmd_ObjectDifference::Sort::Removed:
        return "- ";
    case cmd_ObjectDifference::Sort::Changed:
        break;
    }
    return "~ ";
}

const char* WordOf(cmd_ObjectDifference::Sort sort)
{
    switch (sort)
    {
    case cmd_ObjectDifference::Sort::Added:
        return "added";
    case cmd_ObjectDifference::Sort::Removed:
        return "removed";
    case cmd_ObjectDifference::Sort::Changed:
        break;
    }
    return "changed";
}

} // namespace

std::vector<cmd_ObjectDifference> cmd_Compare(const ddr_Model& before, const ddr_Model& after)
{
    std::vector<cmd_ObjectDifference> found;
    for (const char* word : ddr_Model::Slots())
    {
        const mdl_Repository* old = before.ConstGet(word);
        const mdl_Repository* current = after.ConstGet(word);
        if (old != current)
            RepositoryComparison(word, dynamic_cast<const mdl_NamedObjects*>(old),
                                 dynamic_cast<const mdl_NamedObjects*>(current), found)
                .Run();
    }
    return found;
}

std::string cmd_TextOfDifferences(const std::vector<cmd_ObjectDifference>& differences)
{
    std::string text;
    for (const cmd_ObjectDifference& difference : differences)
    {
        text += SignOf(difference.sort) + difference.path.Text() + " (" + difference.className + ")\n";
        for (const cmd_AttributeDifference& attribute : difference.attributes)
            text += "    " + attribute.words + ": " +
                    ChangeText(attribute.scriptBefore, attribute.scriptAfter) + '\n';
    }
    return text;
}

cls_Value cmd_ValueOfDifferences(const std::vector<cmd_ObjectDifference>& differences)
{
    cls_Value::Array values;
    for (const cmd_ObjectDifference& difference : differences)
    {
        cls_Value::Object value{{"change", WordOf(difference.sort)},
                                {"path", difference.path.Text()},
                                {"class", difference.className}};
        cls_Value::Array attributes;
        for (const cmd_AttributeDifference& attribute : difference.attributes)
            attributes.push_back(cls_Value::Object{
                {"words", attribute.words}, {"before", attribute.before}, {"after", attribute.after}});
        if (difference.sort == cmd_ObjectDifference::Sort::Changed)
            value.emplace_back("attributes", std::move(attributes));
        values.emplace_back(std::move(value));
    }
    return values;
}
