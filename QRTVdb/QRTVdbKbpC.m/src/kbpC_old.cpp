#include "kbpC_old.h"

#include "dbc_DeclaredVersion.h"
#include "dbc_NewFields.h"
#include "dbc_Utils.h"

#include <iterator>

namespace
{

constexpr unsigned earlyMask = 4;
constexpr unsigned lateMask = 5;

constexpr unsigned profileId = 0x2640001;
constexpr dbc_OldIdentity generalizedProfile = dbc_Derived(0x2640002, profileId);
constexpr dbc_OldIdentity pipeProfile = dbc_Derived(0x2640005, profileId);
constexpr dbc_OldIdentity iBeamProfile = dbc_Derived(0x2640006, profileId);
constexpr dbc_OldIdentity boxProfile = dbc_Derived(0x2640007, profileId);
constexpr dbc_OldIdentity arbitraryProfile = dbc_Derived(0x2640009, profileId);
constexpr dbc_OldIdentity channelProfile = dbc_Derived(0x2640015, profileId);

constexpr auto flanges = dbc_Attributes(dbc_Double("l"), dbc_Double("h"), dbc_Double("b1"), dbc_Double("b2"),
                                        dbc_Double("t1"), dbc_Double("t2"), dbc_Double("t3"));

constexpr int tableColumns = 3;

/// Gives a value the name that its field has from now on, unless that one has a value.
template <class T>
void Rename(const dbc_Row& input, dbc_Row& output, const rfm_FieldHandle& from, const rfm_FieldHandle& to,
            T (dbc_Row::*get)(const rfm_FieldHandle&) const, void (dbc_Row::*put)(const rfm_FieldHandle&, T))
{
    if (!dbc_Has(input, to) && dbc_Has(input, from))
        (output.*put)(to, (input.*get)(from));
}

void RenameNumber(const dbc_Row& input, dbc_Row& output, const rfm_FieldHandle& from,
                  const rfm_FieldHandle& to)
{
    Rename(input, output, from, to, &dbc_Row::GetDouble, &dbc_Row::PutDouble);
}

std::vector<double> NumbersOf(const dbc_Row& row, const char* list)
{
    int columns = 0;
    return omi_Singleton<dbc_Utils>::Instance()->GetAttributeArrayDoubleFromInputDatabase(row, list, columns);
}

double NumberAt(const std::vector<double>& numbers, std::size_t position)
{
    return position < numbers.size() ? numbers[position] : 0.0;
}

} // namespace

void* Upgrade_kbpC_ArbitraryProfile_203_505(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle table = dbc_Field("table");
    static const rfm_FieldHandle abscissae = dbc_Field("x");
    if (dbc_Has(input, table) || !dbc_Has(input, abscissae))
        return nullptr;
    const std::vector<double> x = NumbersOf(input, "x");
    const std::vector<double> y = NumbersOf(input, "y");
    const std::vector<double> t = NumbersOf(input, "t");
    std::vector<double> values;
    values.reserve(x.size() * tableColumns);
    for (std::size_t row = 0; row < x.size(); ++row)
    {
        values.push_back(x[row]);
        values.push_back(NumberAt(y, row));
        values.push_back(row == 0 ? 0.0 : NumberAt(t, row - 1));
    }
    omi_Singleton<dbc_Utils>::Instance()->SetNewAttributeArrayDoubleInOutputDatabase(output, "table", values,
                                                                                     tableColumns);
    return nullptr;
}

void* Upgrade_kbpC_BoxProfile_203_406(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle width = dbc_Field("width");
    static const rfm_FieldHandle a = dbc_Field("a");
    static const rfm_FieldHandle height = dbc_Field("height");
    static const rfm_FieldHandle b = dbc_Field("b");
    static const rfm_FieldHandle uniform = dbc_Field("uniform");
    static const rfm_FieldHandle uniformThickness = dbc_Field("uniformThickness");
    RenameNumber(input, output, width, a);
    RenameNumber(input, output, height, b);
    Rename(input, output, uniform, uniformThickness, &dbc_Row::GetBool, &dbc_Row::PutBool);
    return nullptr;
}

void* Upgrade_kbpC_BoxProfile_406_430(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle walls[] = {dbc_Field("t1"), dbc_Field("t2"), dbc_Field("t3"),
                                            dbc_Field("t4")};
    static const rfm_FieldHandle list = dbc_Field("tempThick");
    if (dbc_Has(input, walls[0]) || !dbc_Has(input, list))
        return nullptr;
    const std::vector<double> thicknesses = NumbersOf(input, "tempThick");
    for (std::size_t wall = 0; wall < std::size(walls); ++wall)
        output.PutDouble(walls[wall], NumberAt(thicknesses, wall));
    return nullptr;
}

void* Upgrade_kbpC_GeneralizedProfile_203_406(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle jTorsion = dbc_Field("jTorsion");
    static const rfm_FieldHandle j = dbc_Field("j");
    RenameNumber(input, output, jTorsion, j);
    return nullptr;
}

void* Upgrade_kbpC_PipeProfile_203_406(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle radius = dbc_Field("radius");
    static const rfm_FieldHandle r = dbc_Field("r");
    static const rfm_FieldHandle thickness = dbc_Field("thickness");
    static const rfm_FieldHandle t = dbc_Field("t");
    RenameNumber(input, output, radius, r);
    RenameNumber(input, output, thickness, t);
    return nullptr;
}

void* Upgrade_kbpC_PipeProfile_406_1647(const dbc_Row&, dbc_Row& output, int)
{
    static const dbc_NewField added[] = {{"integrationScheme", "THIN_WALL"}};
    dbc_PutNew(output, added);
    return nullptr;
}

DBC_OLD_CLASS(kbpC_ArbitraryProfile, 203, arbitraryProfile,
              dbc_Step(505, DBC_FUNCTION(Upgrade_kbpC_ArbitraryProfile_203_505)),
              dbc_Collection("x", cls_CollectionListDouble), dbc_Collection("y", cls_CollectionListDouble),
              dbc_Collection("t", cls_CollectionListDouble))

DBC_OLD_CLASS(kbpC_BoxProfile, 203, boxProfile, dbc_Step(406, DBC_FUNCTION(Upgrade_kbpC_BoxProfile_203_406)),
              dbc_Double("width"), dbc_Double("height"), dbc_Bool("uniform"),
              dbc_Collection("tempThick", cls_CollectionListDouble))

DBC_OLD_CLASS(kbpC_BoxProfile, 406, boxProfile, dbc_Step(430, DBC_FUNCTION(Upgrade_kbpC_BoxProfile_406_430)),
              dbc_Double("a"), dbc_Double("b"), dbc_Bool("uniformThickness"),
              dbc_Collection("tempThick", cls_CollectionListDouble))

DBC_OLD_CLASS(kbpC_CbeamProfile, 2202, channelProfile, dbc_Step(2401), flanges)

DBC_OLD_CLASS(kbpC_GeneralizedProfile, 203, generalizedProfile,
              dbc_Step(406, DBC_FUNCTION(Upgrade_kbpC_GeneralizedProfile_203_406)), dbc_Double("area"),
              dbc_Double("i11"), dbc_Double("i12"), dbc_Double("i22"), dbc_Double("jTorsion"),
              dbc_Double("gammaO"), dbc_Double("gammaW"), dbc_Bool("linearBehavior"))

DBC_OLD_CLASS(kbpC_GeneralizedProfile, 406, generalizedProfile, dbc_Step(430), dbc_Double("area"),
              dbc_Double("i11"), dbc_Double("i12"), dbc_Double("i22"), dbc_Double("j"), dbc_Double("gammaO"),
              dbc_Double("gammaW"), dbc_Bool("linearBehavior"))

DBC_OLD_CLASS(kbpC_IbeamProfile, 203, iBeamProfile, dbc_Step(430), flanges, dbc_Enum("integration"))

DBC_OLD_CLASS(kbpC_PipeProfile, 203, pipeProfile,
              dbc_Step(406, DBC_FUNCTION(Upgrade_kbpC_PipeProfile_203_406)), dbc_Double("radius"),
              dbc_Double("thickness"))

DBC_OLD_CLASS(kbpC_PipeProfile, 406, pipeProfile,
              dbc_Step(1647, DBC_FUNCTION(Upgrade_kbpC_PipeProfile_406_1647)), dbc_Double("r"),
              dbc_Double("t"))

void kbpC_RegisterOldClasses()
{
    dbc_RegisterOldClasses<kbpC_BoxProfile_203, kbpC_BoxProfile_406, kbpC_GeneralizedProfile_203,
                           kbpC_GeneralizedProfile_406, kbpC_IbeamProfile_203, kbpC_PipeProfile_203>(
        earlyMask);
    dbc_RegisterOldClasses<kbpC_ArbitraryProfile_203, kbpC_CbeamProfile_2202, kbpC_PipeProfile_406>(lateMask);
}
