#include "karC_old.h"

#include "cls_Uid.h"
#include "cls_Unset.h"
#include "cow_List.h"
#include "dbc_DeclaredVersion.h"
#include "dbc_NewFields.h"
#include "rgnC_Region.h"

namespace
{

constexpr unsigned oldClassMask = 1;

constexpr dbc_OldIdentity rule = dbc_Root(0x3570002);
constexpr auto attributesOf802 =
    dbc_Attributes(dbc_Bool("suppress"), dbc_Object("region", 0x2A0001),
                   dbc_Collection("variables", cls_CollectionListText), dbc_Text("stepName"));
constexpr auto attributesOf837 = dbc_Attributes(attributesOf802, dbc_Text("description"));
constexpr auto attributesOf856 = dbc_Attributes(
    attributesOf837, dbc_Enum("sizingMethod"), dbc_Double("errorTarget"),
    dbc_Double("minSolutionErrorTarget"), dbc_Double("maxSolutionErrorTarget"), dbc_Bool("specifyMinSize"),
    dbc_Double("minElementSize"), dbc_Bool("specifyMaxSize"), dbc_Double("maxElementSize"),
    dbc_Enum("coarsening"), dbc_Int("coarseningFactor"), dbc_Enum("refinement"), dbc_Int("refinementFactor"),
    dbc_Int("meshBias"), dbc_Enum("outputFrequency"));

/// The old versions that are whole rules: region, variables and the identity of their row, as new.
class OldRule : public dbc_DeclaredVersion
{
public:
    rgnC_Region region;
    cow_List<cow_String> variables;
    cls_Uid uid;
};

} // namespace

void* Upgrade_karC_RemeshingRule_802(const dbc_Row& input, dbc_Row& output, int)
{
    static const dbc_NewField added[] = {{"description", ""}};
    dbc_PutMissing(input, output, added);
    return nullptr;
}

void* Upgrade_karC_RemeshingRule_837(const dbc_Row& input, dbc_Row& output, int)
{
    static const dbc_NewField added[] = {{"sizingMethod", "DEFAULT"},
                                         {"errorTarget", 0.0},
                                         {"minSolutionErrorTarget", 0.0},
                                         {"maxSolutionErrorTarget", 0.0},
                                         {"specifyMinSize", false},
                                         {"minElementSize", 0.0},
                                         {"specifyMaxSize", false},
                                         {"maxElementSize", 0.0},
                                         {"coarsening", "DEFAULT_LIMIT"},
                                         {"coarseningFactor", 0},
                                         {"refinement", "DEFAULT_LIMIT"},
                                         {"refinementFactor", 0},
                                         {"meshBias", 0},
                                         {"outputFrequency", "LAST_INCREMENT"}};
    dbc_PutMissing(input, output, added);
    return nullptr;
}

void* Upgrade_karC_RemeshingRule_856(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle sizingMethod = dbc_Field("sizingMethod");
    dbc_MapText(input, output, sizingMethod, {{"MINIMUM_MAXIUM", "MINIMUM_MAXIMUM"}}, dbc_Fold::None);
    return nullptr;
}

void* Upgrade_karC_RemeshingRule_866(const dbc_Row&, dbc_Row& output, int)
{
    static const dbc_NewField added[] = {{"elementCountLimit", cls_UnsetInt}};
    dbc_PutNew(output, added);
    return nullptr;
}

class karC_RemeshingRule_802 : public OldRule
{
    DBC_OLD_FORM(karC_RemeshingRule, 802, rule, dbc_Step(837, DBC_FUNCTION(Upgrade_karC_RemeshingRule_802)),
                 attributesOf802)
};

class karC_RemeshingRule_837 : public OldRule
{
    DBC_OLD_FORM(karC_RemeshingRule, 837, rule, dbc_Step(856, DBC_FUNCTION(Upgrade_karC_RemeshingRule_837)),
                 attributesOf837)
};

class karC_RemeshingRule_856 : public OldRule
{
    DBC_OLD_FORM(karC_RemeshingRule, 856, rule, dbc_Step(866, DBC_FUNCTION(Upgrade_karC_RemeshingRule_856)),
                 attributesOf856)
};

DBC_OLD_CLASS(karC_RemeshingRule, 866, rule, dbc_Step(1407, DBC_FUNCTION(Upgrade_karC_RemeshingRule_866)),
              attributesOf856)

void karC_RegisterOldClasses()
{
    dbc_RegisterOldClasses<karC_RemeshingRule_802, karC_RemeshingRule_837, karC_RemeshingRule_856,
                           karC_RemeshingRule_866>(oldClassMask);
}
