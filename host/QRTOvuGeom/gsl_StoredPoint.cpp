#include "gsl_StoredPoint.h"

#include "cls_ClassMetadata.h"

void gsl_StoredPoint::Write(const cls_WriteVisitor& visitor, const gsl_Point& point) const
{
    cls_MementoWrite& memento = visitor.Memento();
    memento.PutDouble(cls_FieldHandle(firstIndex, xName), point.x);
    memento.PutDouble(cls_FieldHandle(firstIndex + 1, yName), point.y);
    memento.PutDouble(cls_FieldHandle(firstIndex + 2, zName), point.z);
}

gsl_Point gsl_StoredPoint::Read(const cls_ReadVisitor& visitor) const
{
    cls_MementoRead& memento = visitor.Memento();
    gsl_Point point;
    point.x = memento.GetDouble(cls_FieldHandle(firstIndex, xName));
    point.y = memento.GetDouble(cls_FieldHandle(firstIndex + 1, yName));
    point.z = memento.GetDouble(cls_FieldHandle(firstIndex + 2, zName));
    return point;
}

void gsl_StoredPoint::Describe(cls_ClassMetadata& metadata) const
{
    int index = firstIndex;
    for (const char* name : {xName, yName, zName})
        metadata.AddAttribute(cls_FieldHandle(index++, name), cls_TypeDouble, cls_RootId, cls_CollectionNone);
}
