#include "gsl_Dot.h"

#include "cls_ClassRegistrar.h"
#include "cls_RootAdapter.h"
#include "gsl_StoredPoint.h"

namespace
{
constexpr int dotVersion = 203;
constexpr gsl_StoredPoint storedPoint{0, "x", "y", "z"};
} // namespace

gsl_Dot::gsl_Dot()
{
    uid.AllocateUid();
}

gsl_Dot::gsl_Dot(const gsl_Point& point) : point(point)
{
    uid.AllocateUid();
}

gsl_Dot::gsl_Dot(const cls_ReadVisitor& visitor) : point(storedPoint.Read(visitor)), uid(visitor.GetUid()) {}

void gsl_Dot::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (visitor.StartWrite(TypeId(), uid))
        storedPoint.Write(visitor, point);
}

void gsl_Dot::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    storedPoint.Describe(*registrar.AddClassMD(new cls_RootAdapter<gsl_Dot>("gsl_Dot", dotVersion)));
}
