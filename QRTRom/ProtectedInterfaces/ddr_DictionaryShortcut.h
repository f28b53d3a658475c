#pragma once

#include "ddr_ShortcutStep.h"

/// Step from a `P` to the object that it has under a name; `N` is as in a step to a member.
template <class P, class C, int N>
class OVR_EXPORT ddr_DictionaryShortcut
    : public ddr_ShortcutStep<ddr_DictionaryShortcut<P, C, N>, P, C, ddr_detail::NameKey>
{
    using Step = ddr_ShortcutStep<ddr_DictionaryShortcut<P, C, N>, P, C, ddr_detail::NameKey>;
    using Form = ddr_DictionaryStepOf<P, C, N>;
    friend Step;

public:
    ddr_DictionaryShortcut(const cow_String& key, const ddr_Shortcut<P>& parent)
        : Step(ddr_detail::NameKey(key), parent)
    {}

    explicit ddr_DictionaryShortcut(const cls_ReadVisitor& visitor) : Step(visitor) {}

    static constexpr unsigned TypeId() { return Form::id; }

    cow_String Name() const override { return this->KeyOf().value; }

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

    static int ExtentQuantum(const cls_ExtQuant& quanta) { return quanta.ExtentQuantumConstSmall(); }

    cow_String StepText(KeyForm form) const
    {
        return cow_String(Form::prefix)
            .append(ddr_ShortcutBaseImpl::KeyText(this->KeyOf().value,
                                                  Form::hasPlainKeys ? form : KeyForm::Python));
    }

    static ddr_StepClass StepClass()
    {
        ddr_StepClass step = Step::StepClassOf(ddr_StepClass::Sort::Dictionary);
        step.word = Form::prefix;
        if constexpr (requires { &Form::AttributeOf; })
            step.attributeOf = &Form::AttributeOf;
        step.make = [](const omu_ShortcutBase& parent, const cow_String& key, int) -> omu_ShortcutBase* {
            return new ddr_Shortcut<C>(
                new ddr_DictionaryShortcut(key, static_cast<const ddr_Shortcut<P>&>(parent)));
        };
        return step;
    }
};
