#include "kamC_old.h"

#include "dbc_DeclaredVersion.h"
#include "dbc_Fields.h"

namespace
{

constexpr unsigned oldClassMask = 4;

constexpr unsigned baselineCorrectionId = 0x2440001;
constexpr unsigned amplitudeId = 0x2440002;

} // namespace

void* Upgrade_kamC_Amplitude_208_424(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle timeSpan = dbc_Field("timeSpan");
    static const rfm_FieldHandle time = dbc_Field("time");
    if (dbc_Has(input, timeSpan))
        return nullptr;
    if (dbc_Has(input, time))
        output.PutText(timeSpan, input.GetText(time));
    return nullptr;
}

void* Upgrade_kamC_EquallySpaced_203_424(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle data = dbc_Field("data");
    static const rfm_FieldHandle dataClass = dbc_Field("data#ClassID");
    static const rfm_FieldHandle dataRow = dbc_Field("data#OID");
    static const rfm_FieldHandle tableRow = dbc_Field("table#OID");
    if (dbc_Has(input, data) || !dbc_Has(input, tableRow))
        return nullptr;
    output.PutInt(dataClass, cls_ListTypeId);
    output.PutInt(dataRow, input.GetInt(tableRow));
    return nullptr;
}

DBC_OLD_CLASS(kamC_Amplitude, 203, dbc_Root(amplitudeId), dbc_Step(208), dbc_Enum(1, "definition"),
              dbc_Enum(2, "time"), dbc_Enum(3, "value"))

DBC_OLD_CLASS(kamC_Amplitude, 208, dbc_Root(amplitudeId),
              dbc_Step(424, DBC_FUNCTION(Upgrade_kamC_Amplitude_208_424)), dbc_Enum(1, "definition"),
              dbc_Enum(2, "time"))

DBC_OLD_CLASS(kamC_Amplitude, 424, dbc_Root(amplitudeId), dbc_Step(430), dbc_Enum(1, "definition"),
              dbc_Enum(19, "timeSpan"))

DBC_OLD_CLASS(kamC_EquallySpaced, 203, dbc_Derived(0x2440004, amplitudeId),
              dbc_Step(424, DBC_FUNCTION(Upgrade_kamC_EquallySpaced_203_424)), dbc_Double(8, "smooth"),
              dbc_Double(9, "fixedInterval"), dbc_Double(10, "begin"),
              dbc_Collection(11, "table", cls_CollectionListDouble),
              dbc_Object(12, "baselineCorrection", baselineCorrectionId))

DBC_OLD_CLASS(kamC_Periodic, 203, dbc_Derived(0x2440006, amplitudeId),
              dbc_Step(424, DBC_FUNCTION(Upgrade_kamC_Periodic_203_424)), dbc_Double(16, "frequency"),
              dbc_Double(6, "start"), dbc_Double(17, "a_0"),
              dbc_Collection(11, "table", cls_Collection2DArrayDouble))

DBC_OLD_CLASS(kamC_Tabular, 203, dbc_Derived(0x2440008, amplitudeId),
              dbc_Step(424, DBC_FUNCTION(Upgrade_kamC_Tabular_203_424)), dbc_Double(8, "smooth"),
              dbc_Collection(11, "table", cls_Collection2DArrayDouble),
              dbc_Object(12, "baselineCorrection", baselineCorrectionId))

DBC_OLD_CLASS(kamC_SmoothStep, 203, dbc_Derived(0x244000B, amplitudeId),
              dbc_Step(424, DBC_FUNCTION(Upgrade_kamC_SmoothStep_203_424)),
              dbc_Collection(11, "table", cls_Collection2DArrayDouble))

void kamC_RegisterOldClasses()
{
    dbc_RegisterOldClasses<kamC_Amplitude_203, kamC_Amplitude_208, kamC_Amplitude_424, kamC_EquallySpaced_203,
                           kamC_Periodic_203, kamC_Tabular_203, kamC_SmoothStep_203>(oldClassMask);
}
