#include "LibraryEnvironment.h"
#include "ModuleTest.h"
#include "QRTVdbKadC.h"
#include "ddr_DdbContainer.h"
#include "kadC_Shortcuts.h"

namespace
{

using UnknownName = nex_CmdException<cow_String, 9>;

TEST(QRTVdbKadC, RegistersItsClassesInOrder)
{
    EXPECT_EQ((std::vector<RegisteredClass>{{"kadC_AdptMeshCtrl", 7},
                                            {"kadC_AdptMeshDomain", 7},
                                            {"kadC_AdptMeshCtrlContainer", 3},
                                            {"kadC_AdptMeshDomainContainer", 3},
                                            {"kadC_AMCCWrapper", 4},
                                            {"kadC_AdptMeshCtrlShortcut", 7},
                                            {"kadC_AdptMeshCtrlIMPLSC", 7},
                                            {"kadC_AdptMeshCtrlInAdptMeshCtrlContainerShortcut", 7},
                                            {"kadC_AdptMeshCtrlContainerShortcut", 7},
                                            {"kadC_AdptMeshCtrlContainerIMPLSC", 7},
                                            {"kadC_AdptMeshCtrlContainerInModelShortcut", 7},
                                            {"kadC_AdptMeshDomainShortcut", 7},
                                            {"kadC_AdptMeshDomainIMPLSC", 7},
                                            {"kadC_AdptMeshDomainInAdptMeshDomainContainerShortcut", 7},
                                            {"kadC_AdptMeshDomainContainerShortcut", 7},
                                            {"kadC_AdptMeshDomainContainerIMPLSC", 7}}),
              RegisteredClassesOf(616));
}

TEST(QRTVdbKadC, GivesNewModelsTheirControls)
{
    const ddr_Model model;
    const mdl_Repository* const controls = model.ConstGetAdaptiveMeshControls();
    ASSERT_NE(nullptr, controls);
    EXPECT_EQ(0x2680003u, controls->DynTypeId());
    EXPECT_EQ(controls, model.ConstGet("adaptiveMeshControls"));
}

TEST(kadC_AdptMeshCtrlShortcut, LeadsToAControlOfAModel)
{
    ddr_DdbContainer container;
    auto& controls =
        dynamic_cast<kadC_AdptMeshCtrlContainer&>(*container.GetModel()->GetAdaptiveMeshControls());
    controls.Insert("fine", new kadC_AdptMeshCtrl);
    const kadC_AdptMeshCtrlContainerShortcut toControls(
        new kadC_AdptMeshCtrlContainerInModelShortcut(ddr_Shortcut<ddr_Model>()));
    const kadC_AdptMeshCtrlShortcut toControl(
        new kadC_AdptMeshCtrlInAdptMeshCtrlContainerShortcut("fine", toControls));
    EXPECT_EQ(toControl.Path(), "model.adaptiveMeshControls['fine']");
    EXPECT_EQ(controls.ConstGet("fine"), toControl.ConstGet(container));
    controls.Remove("fine");
    EXPECT_THROW(toControl.ConstGet(container), UnknownName);
}

} // namespace
