#include "LibraryEnvironment.h"
#include "ModuleTest.h"
#include "QRTVdbKflC.h"
#include "ddr_DdbContainer.h"
#include "kflC_ButterworthFilter.h"
#include "kflC_Shortcuts.h"

namespace
{

using UnknownName = nex_CmdException<cow_String, 9>;

TEST(QRTVdbKflC, RegistersItsClassesInOrder)
{
    EXPECT_EQ((std::vector<RegisteredClass>{{"kflC_Filter", 7},
                                            {"kflC_ButterworthFilter", 7},
                                            {"kflC_Chebyshev1Filter", 7},
                                            {"kflC_Chebyshev2Filter", 7},
                                            {"kflC_OperatorFilter", 7},
                                            {"kflC_FilterContainer", 3},
                                            {"kflC_FCWrapper", 4},
                                            {"kflC_FilterShortcut", 7},
                                            {"kflC_FilterIMPLSC", 7},
                                            {"kflC_FilterInFilterContainerShortcut", 7},
                                            {"kflC_FilterContainerShortcut", 7},
                                            {"kflC_FilterContainerIMPLSC", 7},
                                            {"kflC_FilterContainerInModelShortcut", 7}}),
              RegisteredClassesOf(849));
}

TEST(QRTVdbKflC, GivesNewModelsTheirFilters)
{
    const ddr_Model model;
    const mdl_Repository* const filters = model.ConstGetFilters();
    ASSERT_NE(nullptr, filters);
    EXPECT_EQ(0x3510001u, filters->DynTypeId());
    EXPECT_EQ(filters, model.ConstGet("filters"));
}

TEST(kflC_FilterShortcut, LeadsToAFilterOfAModel)
{
    ddr_DdbContainer container;
    auto& filters = dynamic_cast<kflC_FilterContainer&>(*container.GetModel()->GetFilters());
    filters.Insert("low pass", new kflC_ButterworthFilter);
    const kflC_FilterContainerShortcut toFilters(
        new kflC_FilterContainerInModelShortcut(ddr_Shortcut<ddr_Model>()));
    const kflC_FilterShortcut toFilter(new kflC_FilterInFilterContainerShortcut("low pass", toFilters));
    EXPECT_EQ(toFilters.Name(), "filters");
    EXPECT_EQ(toFilter.Path(), "model.filters['low pass']");
    EXPECT_EQ(filters.ConstGet("low pass"), toFilter.ConstGet(container));
    filters.Remove("low pass");
    EXPECT_THROW(toFilter.ConstGet(container), UnknownName);
}

} // namespace
