#pragma once

#include "omu_PrimTuple.h"

/// The arguments of a call: values by position, as a tuple has them, and values by keyword. A Get with a
/// keyword binds the next parameter of the call as Python does: to the next value by position while there is
/// one, else to the value of its keyword.
///
///     arguments.Begin();
///     arguments.Get(name, "name");
///     arguments.Get(data, "data");
///     arguments.End("TabularAmplitude");
class OVR_EXPORT omu_Arguments final : public omu_PrimTuple
{
public:
    /// No arguments; `capacity` is as for a tuple.
    explicit omu_Arguments(int capacity = 0);
    omu_Arguments(const omu_Arguments&) = default;
    omu_Arguments& operator=(const omu_Arguments&) = default;
    ~omu_Arguments() override;

    using omu_PrimTuple::Put;
    /// Adds an argument by keyword. A keyword given twice is an error that End throws.
    void PutKeyword(const cow_String& keyword, const omu_Primitive& value);

    int KeywordCount() const { return keywords.Count(); }
    /// Keyword and value at a position below KeywordCount(), in the order given; a bad one aborts.
    const cow_String& Keyword(int position) const { return keywords[position].name; }
    const omu_Primitive& KeywordValue(int position) const { return *keywords[position].value; }
    /// The value given for a keyword, or null.
    const omu_Primitive* FindKeyword(const cow_String& keyword) const;

    void Begin() override;
    /// Throws as for a tuple, and for a keyword that nobody asked for.
    void End(const cow_String& name) override;

    using omu_PrimTuple::Get;
    void Get(bool& value, const char* keyword);
    void Get(int& value, const char* keyword);
    void Get(double& value, const char* keyword);
    void Get(cow_String& value, const char* keyword);
    void Get(cow_List<double>& values, const char* keyword);
    void Get(omu_PrimEnumBase& value, const char* keyword);
    void Get(omu_PrimTuple& value, const char* keyword);

    /// After a Get: whether the argument gave no value, be it left out, None, or not of the kind asked for.
    bool ErrorOnPrevious() const { return Alternative(); }

    /// As in the source text of a call: "(1, name='ramp')".
    cow_String AsString(int form) const override;
    cow_String AsRepr() const override;
    /// Equal to other arguments with equal values by position and, in the same order, by keyword.
    bool operator==(const omu_Primitive& other) const override;
    /// The same; without it two of them compare in two equally good orders.
    bool operator==(const omu_Arguments& other) const
    {
        return *this == static_cast<const omu_Primitive&>(other);
    }
    omu_Arguments* Copy() const override;
    /// Throws: arguments exist while a call is carried out, and are not stored.
    void DBWrite(const cls_WriteVisitor& visitor) const override;

private:
    struct KeywordArgument
    {
        cow_String name;
        Element value;
        bool isAsked = false;
    };

    template <class T>
    void TakeArgument(T& value, const char* keyword);
    template <class TextOf>
    cow_String WithKeywords(const cow_String& byPosition, TextOf textOf) const;

    cow_List<KeywordArgument> keywords;
};
