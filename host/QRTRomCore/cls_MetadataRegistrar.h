#pragma once

#include "cls_ClassRegistrar.h"
#include "omi_Singleton.h"

/// Collects the metadata functions of all current classes, and calls them when a description is first asked
/// for.
class OVR_EXPORT cls_MetadataRegistrar : public omi_SingletonBase<cls_MetadataRegistrar>
{
public:
    using InitializeFunction = void (*)(cls_ClassRegistrar&);

    /// The mask of a class that needs no other.
    static constexpr unsigned DefaultMask = 7;

    cls_MetadataRegistrar();
    ~cls_MetadataRegistrar();

    /// Records a class's metadata function. The mask is kept as it is given; a function given twice is
    /// recorded once.
    void initClassMetadata(InitializeFunction function, unsigned mask = DefaultMask);

    /// The current description of a class, or null.
    const cls_ClassMetadata* Find(unsigned classId);
    /// All current descriptions, in order of registration.
    const cls_ClassRegistrar& Classes();
    /// The mask under which a class was registered; 0 if it was not.
    unsigned Mask(unsigned classId);
    /// Count of recorded functions.
    std::size_t Count() const;

private:
    struct Registration
    {
        InitializeFunction function;
        unsigned mask;
    };

    void RunPending();

    std::vector<Registration> registrations;
    std::unordered_map<InitializeFunction, std::size_t> positions;
    std::size_t done = 0;
    cls_ClassRegistrar classes;
    std::unordered_map<unsigned, unsigned> masks;
};
