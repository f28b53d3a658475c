#pragma once

#include "ddr_ShortcutStep.h"

/// Step from a `P` to the object that it has under a number; `N` is as in a step to a member.
template <class P, class C, int N>
class OVR_EXPORT ddr_SequenceShortcut
    : public ddr_ShortcutStep<ddr_SequenceShortcut<P, C, N>, P, C, ddr_detail::IndexKey>
{
    using Step = ddr_ShortcutStep<ddr_SequenceShortcut<P, C, N>, P, C, ddr_detail::IndexKey>;
    using Form = ddr_SequenceStepOf<P, C, N>;
    friend Step;

public:
    ddr_SequenceShortcut(int key, const ddr_Shortcut<P>& parent) : Step(ddr_detail::IndexKey(key), parent) {}

    explicit ddr_SequenceShortcut(const cls_ReadVisitor& visitor) : Step(visitor) {}

    static constexpr unsigned TypeId() { return Form::id; }

    cow_String Name() const override { return cow_String(this->KeyOf().value); }

    C* Get(ddr_DdbContainer& container) const override
    {
        return Form::Get(this->ParentObject(container), this->KeyOf().value);
    }

    const C* ConstGet(const ddr_DdbContainer& container) const override
    {
        return Form::ConstGet(this->ParentObject(container), this->KeyOf().value);
    }

private:
    using typename Step::KeyForm;

    static int ExtentQuantum(const cls_ExtQuant& quanta) { return quanta.ExtentQuantumConstMedium(); }

    cow_String StepText(KeyForm) const { return cow_String("[").append(Name()).append("]"); }

    static ddr_StepClass StepClass()
    {
        ddr_StepClass step = Step::StepClassOf(ddr_StepClass::Sort::Sequence);
        step.make = [](const omu_ShortcutBase& parent, const cow_String&, int key) -> omu_ShortcutBase* {
            return new ddr_Shortcut<C>(
                new ddr_SequenceShortcut(key, static_cast<const ddr_Shortcut<P>&>(parent)));
        };
        return step;
    }
};
