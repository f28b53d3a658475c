#include "omu_PrimSequence.h"

#include "cls_ClassRegistrar.h"
#include "omu_PrimString.h"
#include "omu_Repr.h"

#include <memory>
#include <string>
#include <typeinfo>

namespace
{

constexpr unsigned sequenceTypeId = 0xB0008;
constexpr int sequenceVersion = 203;

cls_FieldHandle ElementsField()
{
    return cls_FieldHandle(0, "elements");
}

} // namespace

cow_String omu_TextOfElement(const omu_Primitive& element)
{
    if (const auto* text = dynamic_cast<const omu_PrimString*>(&element))
        return omu_QuotedText(text->Value());
    if (dynamic_cast<const omu_PrimSequence*>(&element))
        return element.AsString(0);
    return element.AsRepr();
}

omu_PrimSequence::omu_PrimSequence(omu_PrimKindEnm kind) : omu_Primitive(kind)
{
    elementsUid.AllocateUid();
    uid.AllocateUid();
}

omu_PrimSequence::omu_PrimSequence(const cls_ReadVisitor& visitor)
    : omu_Primitive(cls_ReadVisitor(visitor)), uid(visitor.GetUid())
{
    const cls_ReadVisitor nested(visitor, ElementsField());
    elementsUid = nested.GetUid();
    nested.Memento().CheckCollectionType(cls_CollectionListObj);
    cls_ReadListObj& reader = *nested.Memento().OpenList();
    while (reader.HasRow())
    {
        const cls_ErasedHandle& stored = reader.ReadObject(omu_Primitive::TypeId());
        elements.Append(cow_Restored<omu_Primitive, cow_Virtual<omu_Primitive>>(stored));
    }
    reader.Close();
}

omu_PrimSequence::~omu_PrimSequence() = default;

unsigned omu_PrimSequence::TypeId()
{
    return sequenceTypeId;
}

void omu_PrimSequence::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar
        .CreateClassMD("omu_PrimSequence", sequenceTypeId, sequenceVersion, nullptr, omu_Primitive::TypeId())
        ->AddAttribute(ElementsField(), cls_TypeObject, cls_ListTypeId, cls_CollectionListObj);
}

void omu_PrimSequence::Add(const omu_Primitive& value)
{
    Add(value.Copy());
}

void omu_PrimSequence::Add(omu_Primitive* value)
{
    elements.Append(Element(value));
    elementsUid.NewUid();
}

template <class TextOf>
cow_String omu_PrimSequence::Joined(TextOf textOf) const
{
    const bool isList = OpeningBracket() == '[';
    std::string text(1, isList ? '[' : '(');
    for (const Element& element : elements)
    {
        if (text.size() > 1)
            text += ", ";
        text += textOf(*element).CString();
    }
    if (!isList && Count() == 1)
        text += ',';
    text += isList ? ']' : ')';
    return cow_String(text.c_str());
}

cow_String omu_PrimSequence::AsString(int) const
{
    return Joined(omu_TextOfElement);
}

cow_String omu_PrimSequence::AsRepr() const
{
    return Joined([](const omu_Primitive& element) { return element.AsRepr(); });
}

bool omu_PrimSequence::operator==(const omu_Primitive& other) const
{
    if (typeid(*this) != typeid(other))
        return false;
    const auto& sequence = static_cast<const omu_PrimSequence&>(other);
    if (Count() != sequence.Count())
        return false;
    for (int i = 0; i < Count(); ++i)
    {
        if (!((*this)[i] == sequence[i]))
            return false;
    }
    return true;
}

void omu_PrimSequence::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(sequenceTypeId, uid))
        return;
    omu_Primitive::DBWrite(cls_WriteVisitor(visitor, omu_Primitive::TypeId()));
    const cls_WriteVisitor nested(visitor, ElementsField(), nullptr, nullptr);
    nested.StartWrite(cls_ListTypeId, elementsUid);
    nested.CheckCollectionType(cls_CollectionListObj);
    cls_WriteListObj& writer = *nested.Memento().OpenList(1);
    for (const Element& element : elements)
        element->DBWrite(cls_WriteVisitor(cls_WriteRequestListObj(&writer), nullptr));
    if (writer.HasMore())
        writer.Close();
}
