#pragma once

#include "LibraryEnvironment.h"
#include "cls_Module.h"
#include "ddr_SequenceShortcut.h"
#include "kamC_Decay.h"
#include "kamC_Shortcuts.h"

#include <iterator>

// A numbered repository that hangs below the model for the test's sake, and steps by name behind a word,
// under ids of their own.

MDL_NUMBERED_CONTAINER(kamC_Amplitude, "tst_Numbered", 0x3E70001, nullptr, 0, "numbered")

using tst_Numbered = mdl_MapOfCowsRepository<int, kamC_Amplitude>;

DDR_SHORTCUT(tst_Numbered, 0x3E70002, 0x3E70003)
DDR_SEQUENCE_STEP(tst_Numbered, kamC_Amplitude, 1, 0x3E70005)

/// The numbered repository of the test, wherever the model is.
template <>
struct ddr_MemberStepOf<ddr_Model, tst_Numbered, 1>
{
    static constexpr unsigned id = 0x3E70004;
    static constexpr unsigned ownerId = ddr_Model::TypeId();

    static tst_Numbered& Repository()
    {
        static tst_Numbered repository;
        return repository;
    }

    static const char* Word() { return "numbered"; }
    static tst_Numbered* Get(ddr_Model&) { return &Repository(); }
    static const tst_Numbered* ConstGet(const ddr_Model&) { return &Repository(); }
};

/// From an amplitude by a name behind a word; nothing has a name there.
template <>
struct ddr_DictionaryStepOf<kamC_Amplitude, kamC_BaselineCorrection, 1>
{
    static constexpr unsigned id = 0x3E70006;
    static constexpr const char* prefix = ".corrections";
    static constexpr bool hasPlainKeys = true;

    static kamC_BaselineCorrection* Get(kamC_Amplitude&, const cow_String& key)
    {
        ddr_RaiseUnknown(key, __LINE__);
    }

    static const kamC_BaselineCorrection* ConstGet(const kamC_Amplitude&, const cow_String& key)
    {
        ddr_RaiseUnknown(key, __LINE__);
    }
};

/// From an amplitude to one that is part of it: makes paths of any length possible.
template <>
struct ddr_DictionaryStepOf<kamC_Amplitude, kamC_Amplitude, 1>
{
    static constexpr unsigned id = 0x3E70007;
    static constexpr const char* prefix = ".parts";
    static constexpr bool hasPlainKeys = true;

    static kamC_Amplitude* Get(kamC_Amplitude& amplitude, const cow_String&) { return &amplitude; }
    static const kamC_Amplitude* ConstGet(const kamC_Amplitude& amplitude, const cow_String&)
    {
        return &amplitude;
    }
};

using tst_NumberedInModel = ddr_MemberShortcut<ddr_Model, tst_Numbered, 1>;
using tst_AmplitudeInNumbered = ddr_SequenceShortcut<tst_Numbered, kamC_Amplitude, 1>;
using tst_CorrectionOfAmplitude = ddr_DictionaryShortcut<kamC_Amplitude, kamC_BaselineCorrection, 1>;

using tst_PartOfAmplitude = ddr_DictionaryShortcut<kamC_Amplitude, kamC_Amplitude, 1>;

/// Enters the test's classes, once.
inline void tst_RegisterSteps()
{
    static constexpr typ_Entry entries[] = {{0, 1, nullptr},
                                            {7, 0xA0001, "tst_Numbered"},
                                            {7, 1, "tst_NumberedShortcut"},
                                            {7, 1, "tst_NumberedIMPLSC"},
                                            {7, 0x3E70003, "tst_NumberedInModelShortcut"},
                                            {7, 0x244000F, "tst_AmplitudeInNumberedShortcut"},
                                            {7, 0x2440015, "tst_CorrectionInAmplitudeShortcut"},
                                            {7, 0x244000F, "tst_PartInAmplitudeShortcut"}};
    LibraryEnvironment::Require();
    typ_ArchCompTable::InsertEntry(999, typ_ArchCompEntry(entries, std::size(entries)));
    cls_RegisterClasses<tst_Numbered, ddr_Shortcut<tst_Numbered>, ddr_ShortcutImpl<tst_Numbered>,
                        tst_NumberedInModel, tst_AmplitudeInNumbered, tst_CorrectionOfAmplitude,
                        tst_PartOfAmplitude>();
}

inline kamC_AmplitudeContainerShortcut ToAmplitudes(const char* ddbName = "")
{
    return kamC_AmplitudeContainerShortcut(
        new kamC_AmplitudeContainerInModelShortcut(ddr_Shortcut<ddr_Model>(ddbName)));
}

inline kamC_AmplitudeShortcut ToAmplitude(const char* name)
{
    return kamC_AmplitudeShortcut(new kamC_AmplitudeInAmplitudeContainerShortcut(name, ToAmplitudes()));
}

inline ddr_Shortcut<tst_Numbered> ToNumbered()
{
    return ddr_Shortcut<tst_Numbered>(new tst_NumberedInModel(ddr_Shortcut<ddr_Model>()));
}

inline kamC_AmplitudeShortcut ToNumber(int number)
{
    return kamC_AmplitudeShortcut(new tst_AmplitudeInNumbered(number, ToNumbered()));
}

template <int N>
kamC_BaselineCorrectionShortcut ToCorrection(const char* name)
{
    return kamC_BaselineCorrectionShortcut(
        new ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, N>(ToAmplitude(name)));
}
