#include "gsl_ModelSegment.h"

#include "cls_ClassRegistrar.h"
#include "cls_RootAdapter.h"
#include "ftr_FeatureList.h"
#include "gsl_StoredPoint.h"

namespace
{
constexpr int segmentVersion = 203;
constexpr gsl_StoredPoint storedFrom{0, "fromX", "fromY", "fromZ"};
constexpr gsl_StoredPoint storedTo{3, "toX", "toY", "toZ"};
} // namespace

gsl_ModelSegment::gsl_ModelSegment()
{
    uid.AllocateUid();
}

gsl_ModelSegment::gsl_ModelSegment(const gsl_Dot& from, const gsl_Dot& to)
    : from(from.GetPoint()), to(to.GetPoint())
{
    uid.AllocateUid();
}

gsl_ModelSegment::gsl_ModelSegment(const cls_ReadVisitor& visitor)
    : from(storedFrom.Read(visitor)), to(storedTo.Read(visitor)), uid(visitor.GetUid())
{}

void gsl_ModelSegment::Regenerate(const ftr_FeatureList* features)
{
    if (!features)
        return;
    const gsl_Point newFrom = features->Regenerated(from);
    const gsl_Point newTo = features->Regenerated(to);
    from = newFrom;
    to = newTo;
}

void gsl_ModelSegment::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    storedFrom.Write(visitor, from);
    storedTo.Write(visitor, to);
}

void gsl_ModelSegment::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    cls_ClassMetadata* metadata =
        registrar.AddClassMD(new cls_RootAdapter<gsl_ModelSegment>("gsl_ModelSegment", segmentVersion));
    storedFrom.Describe(*metadata);
    storedTo.Describe(*metadata);
}
