#include "kamC_Shortcuts.h"

namespace
{

/// The amplitude's handle of a baseline correction, or null if amplitudes of its kind have none.
kamC_BaselineCorrectionHandle* CorrectionOf(kamC_Amplitude& amplitude)
{
    const cls_Description* description = cls_Descriptions().Find(amplitude.DynTypeId());
    const cls_Attribute* attribute =
        description ? description->FindByWord(kamC_Tabular::baselineCorrectionCmd()) : nullptr;
    return attribute ? static_cast<kamC_BaselineCorrectionHandle*>(attribute->member(&amplitude)) : nullptr;
}

} // namespace

kamC_BaselineCorrection*
ddr_MemberStepOf<kamC_Amplitude, kamC_BaselineCorrection, 3>::Get(kamC_Amplitude& amplitude)
{
    kamC_BaselineCorrectionHandle* handle = CorrectionOf(amplitude);
    return handle && !handle->IsNull() ? handle->Get() : nullptr;
}

const kamC_BaselineCorrection*
ddr_MemberStepOf<kamC_Amplitude, kamC_BaselineCorrection, 3>::ConstGet(const kamC_Amplitude& amplitude)
{
    // Nothing is changed here: the way to a member is the same for reading and for changing.
    const kamC_BaselineCorrectionHandle* handle = CorrectionOf(const_cast<kamC_Amplitude&>(amplitude));
    return handle ? handle->ConstGet() : nullptr;
}

template class ddr_ShortcutImpl<kamC_Amplitude>;
template class ddr_Shortcut<kamC_Amplitude>;
template class ddr_DictionaryShortcut<kamC_AmplitudeContainer, kamC_Amplitude, 1>;
template class ddr_ShortcutImpl<kamC_AmplitudeContainer>;
template class ddr_Shortcut<kamC_AmplitudeContainer>;
template class ddr_MemberShortcut<ddr_Model, kamC_AmplitudeContainer, 1>;
template class ddr_ShortcutImpl<kamC_BaselineCorrection>;
template class ddr_Shortcut<kamC_BaselineCorrection>;
template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 1>;
template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 2>;
template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 3>;
