#include "omu_Arguments.h"

#include "atr_translate.h"
#include "nex_Exceptions.h"

namespace
{

/// The message with the keyword in its place.
atr_String About(const char* message, const cow_String& keyword)
{
    atr_translate text(message, 0);
    atr_SubstituteFormat(text, 1, keyword.CString(), 0);
    return text.Result(0);
}

} // namespace

omu_Arguments::omu_Arguments(int capacity) : omu_PrimTuple(capacity) {}

omu_Arguments::~omu_Arguments() = default;

void omu_Arguments::PutKeyword(const cow_String& keyword, const omu_Primitive& value)
{
    keywords.Append({keyword, Element(value), false});
}

const omu_Primitive* omu_Arguments::FindKeyword(const cow_String& keyword) const
{
    for (const KeywordArgument& argument : keywords)
    {
        if (argument.name == keyword)
            return argument.value.ConstGet();
    }
    return nullptr;
}

void omu_Arguments::Begin()
{
    omu_PrimTuple::Begin();
    for (int i = 0; i < keywords.Count(); ++i)
        keywords.Get(i)->isAsked = false;
}

void omu_Arguments::End(const cow_String& name)
{
    for (const KeywordArgument& argument : keywords)
    {
        if (!argument.isAsked)
            Fail(About("Unknown argument '%s'.", argument.name));
    }
    omu_PrimTuple::End(name);
}

template <class T>
void omu_Arguments::TakeArgument(T& value, const char* keyword)
{
    const omu_Primitive* source = Next();
    for (int i = 0; i < keywords.Count(); ++i)
    {
        if (!(keywords[i].name == keyword))
            continue;
        keywords.Get(i)->isAsked = true;
        if (source)
            Fail(About("Argument '%s' is given twice.", keyword));
        else
            source = keywords[i].value.ConstGet();
    }
    Take(source, value, About("Argument '%s'", keyword).CString());
}

void omu_Arguments::Get(bool& value, const char* keyword)
{
    TakeArgument(value, keyword);
}

void omu_Arguments::Get(int& value, const char* keyword)
{
    TakeArgument(value, keyword);
}

void omu_Arguments::Get(double& value, const char* keyword)
{
    TakeArgument(value, keyword);
}

void omu_Arguments::Get(cow_String& value, const char* keyword)
{
    TakeArgument(value, keyword);
}

void omu_Arguments::Get(cow_List<double>& values, const char* keyword)
{
    TakeArgument(values, keyword);
}

void omu_Arguments::Get(omu_PrimEnumBase& value, const char* keyword)
{
    TakeArgument(value, keyword);
}

void omu_Arguments::Get(omu_PrimTuple& value, const char* keyword)
{
    TakeArgument(value, keyword);
}

template <class TextOf>
cow_String omu_Arguments::WithKeywords(const cow_String& byPosition, TextOf textOf) const
{
    // What a call shows ends in no comma, unlike a tuple of one value.
    cow_String text = byPosition.Substr(0, byPosition.Length() - (Count() == 1 ? 2 : 1));
    for (int i = 0; i < keywords.Count(); ++i)
    {
        if (Count() + i > 0)
            text.append(", ");
        text.append(keywords[i].name).append("=").append(textOf(*keywords[i].value));
    }
    return text.append(")");
}

cow_String omu_Arguments::AsString(int form) const
{
    return WithKeywords(omu_PrimTuple::AsString(form),
                        [](const omu_Primitive& value) { return omu_TextOfElement(value); });
}

cow_String omu_Arguments::AsRepr() const
{
    return WithKeywords(omu_PrimTuple::AsRepr(), [](const omu_Primitive& value) { return value.AsRepr(); });
}

bool omu_Arguments::operator==(const omu_Primitive& other) const
{
    const auto* arguments = dynamic_cast<const omu_Arguments*>(&other);
    if (!arguments || !omu_PrimTuple::operator==(other) || KeywordCount() != arguments->KeywordCount())
        return false;
    for (int i = 0; i < KeywordCount(); ++i)
    {
        if (!(Keyword(i) == arguments->Keyword(i)) || !(KeywordValue(i) == arguments->KeywordValue(i)))
            return false;
    }
    return true;
}

omu_Arguments* omu_Arguments::Copy() const
{
    return new omu_Arguments(*this);
}

void omu_Arguments::DBWrite(const cls_WriteVisitor&) const
{
    nex_CmdException<atr_String, 2>(atr_raw("The arguments of a call are not stored.", 0), 0)
        .Throw("host/QRTOvuBasicUtils/omu_Arguments", __LINE__);
}
