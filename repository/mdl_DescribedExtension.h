#pragma once

#include "cls_Class.h"
#include "mdl_Extension.h"

/// What the class pattern asks of the templates of this folder: how such a class is described, written and
/// told from others. `Self` has the stored name, `StoredName()`, its class id, its one entry, and its
/// identity, `Uid()`; `Base` is the host's class below it.
template <class Self, class Base>
class mdl_DescribedExtension : public Base
{
public:
    using cls_RootClass = mdl_Extension;
    using cls_Base = Base;

    static constexpr bool cls_IsDirect = false;
    static constexpr int cls_EntryCount = 1;

    static const cls_Description& Description()
    {
        static constexpr cls_ClassInfo info = cls_detail::MakeInfo<Self>(Self::StoredName());
        static const cls_Description description(info);
        return description;
    }

    static void InitializeMetadata(cls_ClassRegistrar& registrar) { cls_detail::Describe<Self>(registrar); }

    unsigned DynTypeId() const override { return Self::TypeId(); }

    void DBWrite(const cls_WriteVisitor& visitor) const override
    {
        const Self& self = static_cast<const Self&>(*this);
        if (!visitor.StartWrite(Self::TypeId(), self.Uid()))
            return;
        cls_detail::WriteBase(self, visitor);
        Description().WriteAttributes(static_cast<const mdl_Extension*>(this), visitor);
    }

protected:
    using Base::Base;
};
