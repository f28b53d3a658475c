#include "cls_xpCollections.h"

#include <type_traits>
#include <vector>

namespace
{

/// The numbers of a list in one run; for bool a plain array, as `std::vector<bool>` has none.
template <class T>
class Scratch
{
public:
    explicit Scratch(long count)
        : values(static_cast<T*>(mem_OperatorNewThrow(sizeof(T) * static_cast<std::size_t>(count + 1))))
    {}

    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    ~Scratch() { mem_Free(values); }

    T* Values() const { return values; }

private:
    T* values;
};

template <class T>
void PutNumbers(cls_MementoWrite& memento, const T* values, long count)
{
    if constexpr (std::is_same_v<T, double>)
        memento.PutDoubles(values, count, 1);
    else if constexpr (std::is_same_v<T, int>)
        memento.PutInts(values, count);
    else
        memento.PutBools(values, count);
}

template <class T>
long OpenNumbers(cls_MementoRead& memento)
{
    int columns = 0;
    if constexpr (std::is_same_v<T, double>)
        return memento.OpenDoubles(columns);
    else if constexpr (std::is_same_v<T, int>)
        return memento.OpenInts();
    else
        return memento.OpenBools();
}

template <class T>
void ReadNumbers(cls_MementoRead& memento, T* values)
{
    if constexpr (std::is_same_v<T, double>)
        memento.ReadDoubles(values);
    else if constexpr (std::is_same_v<T, int>)
        memento.ReadInts(values);
    else
        memento.ReadBools(values);
}

template <class T>
void PutList(cls_MementoWrite& memento, const cow_List<T>& list)
{
    const int count = list.Count();
    if constexpr (std::is_same_v<T, cow_String>)
    {
        for (int i = 0; i < count; ++i)
            memento.PutElementText(list[i]);
    }
    else
    {
        const Scratch<T> scratch(count);
        for (int i = 0; i < count; ++i)
            scratch.Values()[i] = list[i];
        PutNumbers(memento, scratch.Values(), count);
    }
}

template <class T>
void ReadList(cls_MementoRead& memento, cow_List<T>& list)
{
    if constexpr (std::is_same_v<T, cow_String>)
    {
        const long count = memento.OpenElements();
        for (long i = 0; i < count; ++i)
            list.Append(memento.ElementText(i));
    }
    else
    {
        const long count = OpenNumbers<T>(memento);
        const Scratch<T> scratch(count);
        ReadNumbers(memento, scratch.Values());
        list.SetFromArray(scratch.Values(), static_cast<int>(count));
    }
}

void NoteUid(const cls_Uid& uid, cls_Uid* storedUid)
{
    if (storedUid)
        *storedUid = uid;
}

} // namespace

template <class T>
cls_xpScalarList<T>::cls_xpScalarList(const cls_ReadVisitor& visitor, cls_Uid* storedUid)
{
    this->uid = visitor.GetUid();
    NoteUid(this->uid, storedUid);
    visitor.Memento().CheckCollectionType(Code);
    ReadList<T>(visitor.Memento(), *this);
}

template <class T>
void cls_xpScalarList<T>::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(cls_ListTypeId, this->uid))
        return;
    visitor.CheckCollectionType(Code);
    PutList<T>(visitor.Memento(), *this);
}

template class cls_xpScalarList<bool>;
template class cls_xpScalarList<double>;
template class cls_xpScalarList<int>;
template class cls_xpScalarList<cow_String>;

cls_xp2DArrayDouble::cls_xp2DArrayDouble(const cls_ReadVisitor& visitor, cls_Uid* storedUid)
{
    uid = visitor.GetUid();
    NoteUid(uid, storedUid);
    cls_MementoRead& memento = visitor.Memento();
    memento.CheckCollectionType(Code);
    int columns = 0;
    const long count = memento.OpenDoubles(columns);
    if (columns == 0)
        return;
    cow_2DArray<double> array(static_cast<int>(count / columns), columns);
    if (count > 0)
        memento.ReadDoubles(array.Data());
    cow_2DArray<double>::operator=(array);
}

void cls_xp2DArrayDouble::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(cls_ListTypeId, uid))
        return;
    visitor.CheckCollectionType(Code);
    const long count = static_cast<long>(Rows()) * Columns();
    visitor.Memento().PutDoubles(ConstData(), count, Columns());
}

cls_xp2DArrayDouble cls_xp2DArrayDoubleFromCow(const cow_2DArray<double>& array)
{
    return cls_xp2DArrayDouble(array);
}

cls_xpMapString2Float::cls_xpMapString2Float(const cls_ReadVisitor& visitor)
{
    uid = visitor.GetUid();
    cls_MementoRead& memento = visitor.Memento();
    memento.CheckCollectionType(Code);
    const long count = memento.OpenElements();
    for (long i = 0; i < count; ++i)
        Insert(memento.ElementKey(i), memento.ElementFloat(i));
}

void cls_xpMapString2Float::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(cls_MapTypeId, uid))
        return;
    visitor.CheckCollectionType(Code);
    for (cow_ConstMapIterator<cow_String, float> entry(*this); entry.Valid(); entry.Next())
        visitor.Memento().PutElementFloat(entry.Key(), entry.Value());
}

namespace
{

/// One entry of a map of arrays, so that a visitor can be built for it.
class ArrayRequest : public cls_AgentRequest
{
public:
    ArrayRequest(cls_MementoWrite& writer, const cow_String& key) : writer(writer), key(key) {}

    cls_MementoWrite* Open() const override { return writer.OpenElement(key); }

private:
    cls_MementoWrite& writer;
    const cow_String& key;
};

} // namespace

cls_xpMapString2Array2D::cls_xpMapString2Array2D(const cls_ReadVisitor& visitor)
{
    uid = visitor.GetUid();
    cls_MementoRead& memento = visitor.Memento();
    memento.CheckCollectionType(Code);
    const long count = memento.OpenElements();
    for (long i = 0; i < count; ++i)
    {
        const cow_String key = memento.ElementKey(i);
        const cls_ReadVisitor element(memento.OpenElement(i));
        Insert(key, cls_xp2DArrayDouble(element));
    }
}

void cls_xpMapString2Array2D::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(cls_MapTypeId, uid))
        return;
    visitor.CheckCollectionType(Code);
    for (cow_ConstMapIterator<cow_String, cls_xp2DArrayDouble> entry(*this); entry.Valid(); entry.Next())
    {
        const cls_WriteVisitor element(ArrayRequest(visitor.Memento(), entry.Key()), nullptr);
        entry.Value().DBWrite(element);
    }
}
