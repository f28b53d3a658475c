#pragma once

#include "ddr_ShortcutStep.h"

/// Step from a `P` to a member of it; `N` tells apart several ones that lead from a `P` to a `C`.
template <class P, class C, int N>
class OVR_EXPORT ddr_MemberShortcut
    : public ddr_ShortcutStep<ddr_MemberShortcut<P, C, N>, P, C, ddr_detail::NoKey>
{
    using Step = ddr_ShortcutStep<ddr_MemberShortcut<P, C, N>, P, C, ddr_detail::NoKey>;
    using Form = ddr_MemberStepOf<P, C, N>;
    friend Step;

public:
    explicit ddr_MemberShortcut(const ddr_Shortcut<P>& parent) : Step(ddr_detail::NoKey(), parent) {}

    explicit ddr_MemberShortcut(const cls_ReadVisitor& visitor) : Step(visitor) {}

    static constexpr unsigned TypeId() { return Form::id; }

    cow_String Name() const override { return Form::Word(); }

    C* Get(ddr_DdbContainer& container) const override { return Form::Get(this->ParentObject(container)); }

    const C* ConstGet(const ddr_DdbContainer& container) const override
    {
        return Form::ConstGet(this->ParentObject(container));
    }

private:
    using typename Step::KeyForm;

    static int ExtentQuantum(const cls_ExtQuant& quanta) { return quanta.ExtentQuantumConstMedium(); }
    cow_String StepText(KeyForm) const { return cow_String(".").append(Form::Word()); }

    static ddr_StepClass StepClass()
    {
        ddr_StepClass step = Step::StepClassOf(ddr_StepClass::Sort::Member);
        step.word = Form::Word();
        step.isOfParentItself = Form::ownerId == P::TypeId();
        step.make = [](const omu_ShortcutBase& parent, const cow_String&, int) -> omu_ShortcutBase*
        { return new ddr_Shortcut<C>(new ddr_MemberShortcut(static_cast<const ddr_Shortcut<P>&>(parent))); };
        return step;
    }
};
