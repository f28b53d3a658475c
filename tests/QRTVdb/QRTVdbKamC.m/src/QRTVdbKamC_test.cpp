#include "QRTVdbKamC.h"

#include "LibraryEnvironment.h"
#include "ModuleTest.h"
#include "VirtualSlot.h"
#include "kamC_CorrelationComponent.h"
#include "kamC_Decay.h"
#include "kamC_PsdDefinition.h"
#include "kamC_Spectrum.h"
#include "kamC_Tabular.h"

#include <type_traits>

namespace
{

TEST(QRTVdbKamC, RegistersItsClassesInOrder)
{
    EXPECT_EQ((std::vector<RegisteredClass>{{"kamC_BaselineCorrection", 7},
                                            {"kamC_Amplitude", 7},
                                            {"kamC_Decay", 7},
                                            {"kamC_EquallySpaced", 7},
                                            {"kamC_Modulated", 7},
                                            {"kamC_Periodic", 7},
                                            {"kamC_SolutionDependent", 7},
                                            {"kamC_Tabular", 7},
                                            {"kamC_PsdDefinition", 7},
                                            {"kamC_Spectrum", 7},
                                            {"kamC_SmoothStep", 7},
                                            {"kamC_AmplitudeContainer", 7},
                                            {"kamC_ACWrapper", 4},
                                            {"kamC_AmplitudeShortcut", 7},
                                            {"kamC_AmplitudeIMPLSC", 7},
                                            {"kamC_AmplitudeInAmplitudeContainerShortcut", 7},
                                            {"kamC_AmplitudeContainerShortcut", 7},
                                            {"kamC_AmplitudeContainerIMPLSC", 7},
                                            {"kamC_BaselineCorrectionShortcut", 7},
                                            {"kamC_BaselineCorrectionIMPLSC", 7},
                                            {"kamC_BaselineCorrectionInEquallySpacedShortcut", 7},
                                            {"kamC_BaselineCorrectionInTabularShortcut", 7},
                                            {"kamC_AmplitudeContainerInModelShortcut", 7},
                                            {"kamC_BaselineCorrectionInAmplitudeShortcut", 7},
                                            {"kamC_ActuatorAmplitude", 7},
                                            {"kamC_UserAmplitude", 7},
                                            {"kamC_SpectrumAmplitude", 7},
                                            {"kamC_CorrelationComponent", 7}}),
              RegisteredClassesOf(580));
}

TEST(kamC_Amplitude, HasItsVirtualOperationsInOrder)
{
    // Two slots of the destructor come first.
    EXPECT_EQ(2u, VirtualSlotOf(&kamC_Amplitude::Copy));
    EXPECT_EQ(3u, VirtualSlotOf(&kamC_Amplitude::DBWrite));
    EXPECT_EQ(4u, VirtualSlotOf(&kamC_Amplitude::DynTypeId));
    EXPECT_EQ(5u, VirtualSlotOf(&kamC_PsdDefinition::AssertValid));
    EXPECT_EQ(5u, VirtualSlotOf(&kamC_Spectrum::AssertValid));
    EXPECT_EQ(2u, VirtualSlotOf(&kamC_CorrelationComponent::Copy));
    EXPECT_EQ(3u, VirtualSlotOf(&kamC_CorrelationComponent::DBWrite));
    EXPECT_EQ(4u, VirtualSlotOf(&kamC_CorrelationComponent::DynTypeId));
}

TEST(kamC_Amplitude, HasTheWordsOfItsRepository)
{
    EXPECT_STREQ("amplitudes", kamC_Amplitude::amplitudeRepositoryCmd());
    EXPECT_STREQ("setValues", kamC_Amplitude::setValuesCmd());
    EXPECT_STREQ("name", kamC_Amplitude::nameCmd());
}

/// What derives from `Base` and declares `AssertValid` of its own.
template <class Base>
struct Derived : Base
{
    void AssertValid() const { isReached = true; }

    mutable bool isReached = false;
};

/// Whether `AssertValid` of `Base` leads to that of a derived class.
template <class Base>
bool IsVirtualIn()
{
    const Derived<Base> derived;
    try
    {
        static_cast<const Base&>(derived).AssertValid();
    }
    catch (const nex_PrimException<atr_String, 1>&)
    {
        return false;
    }
    return derived.isReached;
}

TEST(kamC_Amplitude, ChecksVirtuallyInTwoClassesOnly)
{
    EXPECT_TRUE(IsVirtualIn<kamC_PsdDefinition>());
    EXPECT_TRUE(IsVirtualIn<kamC_Spectrum>());
    EXPECT_FALSE(IsVirtualIn<kamC_Tabular>());
    EXPECT_FALSE(IsVirtualIn<kamC_Decay>());
    EXPECT_FALSE(IsVirtualIn<kamC_CorrelationComponent>());
    EXPECT_FALSE(std::is_polymorphic_v<kamC_BaselineCorrection>);
    EXPECT_TRUE(std::is_abstract_v<kamC_Amplitude>);
}

} // namespace
