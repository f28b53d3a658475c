#pragma once

#include "omu_PrimSequence.h"

#include "atr_String.h"

/// A tuple of values: made with Put, read value by value with Get.
///
///     tuple.Begin();
///     tuple.Get(first);
///     tuple.Get(second);
///     tuple.End("name");
///
/// A Get looks at the next value. If that is missing or None, or not of the kind asked for, the variable
/// stays as it is and Alternative() is true afterwards. A value of another kind is an error; the first error
/// is kept, and End throws it.
class OVR_EXPORT omu_PrimTuple : public omu_PrimSequence
{
public:
    /// Empty. `capacity` is the number of slots that the maker has in mind, which bounds nothing; `bracket`
    /// is the opening bracket of the tuple as text, the left parenthesis except for one that shows itself as
    /// a list.
    explicit omu_PrimTuple(int capacity = 0, char bracket = '(');
    explicit omu_PrimTuple(const cls_ReadVisitor& visitor);
    omu_PrimTuple(const omu_PrimTuple&) = default;
    omu_PrimTuple& operator=(const omu_PrimTuple&) = default;
    ~omu_PrimTuple() override;

    static unsigned TypeId();
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    /// The number of slots that it was made with.
    int Capacity() const { return capacity; }

    void Put(bool value);
    void Put(int value);
    void Put(double value);
    void Put(const char* value);
    void Put(const cow_String& value);
    /// A copy of any primitive.
    void Put(const omu_Primitive& value);
    /// Lists are put as tuples.
    void Put(const cow_List<bool>& values);
    void Put(const cow_List<int>& values);
    void Put(const cow_List<double>& values);
    void Put(const cow_List<cow_String>& values);

    /// Goes to the first value and forgets errors.
    virtual void Begin();
    /// Throws `nex_CmdException<atr_String, 2>` with the first error since Begin, or if values are left that
    /// nobody asked for. A name that is not empty stands before the text.
    virtual void End(const cow_String& name);

    void Get(bool& value);
    void Get(int& value);
    /// Whole numbers are taken too.
    void Get(double& value);
    void Get(cow_String& value);
    /// A tuple or list of numbers.
    void Get(cow_List<double>& values);
    /// A value or a text of the enumeration. A whole number is not taken.
    void Get(omu_PrimEnumBase& value);
    /// A nested tuple or list, as a tuple that shares its values.
    void Get(omu_PrimTuple& value);

    /// After a Get: whether there was no value to take.
    bool Alternative() const { return alternative; }

    cow_String TypeString() const override;
    void Accept(omu_PrimVisitor* visitor) override;
    omu_PrimTuple* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(const cls_WriteVisitor& visitor) const override;

protected:
    char OpeningBracket() const override;

    /// The next value, or null if there is none left.
    const omu_Primitive* Next();
    /// Gives `value` what `source`, which may be null, holds; `place` names the value in errors.
    template <class T>
    void Take(const omu_Primitive* source, T& value, const cow_String& place);
    /// Keeps the message as the error unless there is one already.
    void Fail(const atr_String& message);
    /// Whether nothing went wrong since Begin.
    bool IsSound() const { return failure.IsEmpty(); }
    int Position() const { return next; }

private:
    template <class T>
    void TakeNext(T& value);
    template <class Primitive, class T>
    void PutList(const cow_List<T>& values);

    int capacity;
    char bracket;
    int next = 0;
    bool alternative = false;
    atr_String failure;
    cls_Uid uid;
};
