#include "omu_Primitive.h"

omu_PrimVisitor::~omu_PrimVisitor() = default;

omu_Primitive::~omu_Primitive() = default;

cow_String omu_Primitive::AsRepr() const
{
    return AsString(0);
}
