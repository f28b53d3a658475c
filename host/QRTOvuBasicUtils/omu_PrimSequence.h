#pragma once

#include "cow_List.h"
#include "omu_Primitive.h"

/// Values in order: the base of tuples and lists. A copy shares the values until one of both is changed.
class OVR_EXPORT omu_PrimSequence : public omu_Primitive
{
public:
    using Element = cow_ArrayCOW<omu_Primitive, cow_Virtual<omu_Primitive>>;

    ~omu_PrimSequence() override;

    static unsigned TypeId();
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    int Count() const { return elements.Count(); }
    bool IsEmpty() const { return elements.IsEmpty(); }
    /// The value at a position below Count(); a bad one aborts.
    const omu_Primitive& operator[](int position) const { return *elements[position]; }

    /// Puts a copy of the value behind the others.
    void Add(const omu_Primitive& value);
    /// The same with the value itself, which must not be null; takes ownership.
    void Add(omu_Primitive* value);

    /// As for people: texts in double quotes, numbers as Python writes them.
    cow_String AsString(int form) const override;
    /// As Python source text.
    cow_String AsRepr() const override;
    /// Equal to a sequence of the same class with equal values.
    bool operator==(const omu_Primitive& other) const override;
    /// The same; without it two sequences compare in two equally good orders.
    bool operator==(const omu_PrimSequence& other) const
    {
        return *this == static_cast<const omu_Primitive&>(other);
    }
    omu_PrimSequence* Copy() const override = 0;
    void DBWrite(const cls_WriteVisitor& visitor) const override;

protected:
    explicit omu_PrimSequence(omu_PrimKindEnm kind);
    explicit omu_PrimSequence(const cls_ReadVisitor& visitor);
    omu_PrimSequence(const omu_PrimSequence&) = default;
    omu_PrimSequence& operator=(const omu_PrimSequence&) = default;

    /// The brackets around the values.
    virtual char OpeningBracket() const = 0;

    /// Takes the values of another sequence in place of its own.
    void TakeElements(const omu_PrimSequence& other) { elements = other.elements; }

private:
    template <class TextOf>
    cow_String Joined(TextOf textOf) const;

    cow_List<Element> elements;
    cls_Uid elementsUid;
    cls_Uid uid;
};

/// A value within a sequence, as `AsString` of the sequence shows it.
OVR_EXPORT cow_String omu_TextOfElement(const omu_Primitive& element);
