#pragma once

#include "mdl_Extension.h"

#include <array>
#include <cstddef>

class ddr_Model;

/// A model as programs and containers hold it.
using ddr_ModelHandle = cow_COW<ddr_Model, cow_Virtual<ddr_Model>>;

/// The root of a model: one slot for each repository that can be plugged in. A new model begins with the
/// containers registered at that time; later registrations don't change it. Copying a model shares its
/// containers, whatever their size, and asking one for writing makes it private first, so a copy is a
/// snapshot.
class OVR_EXPORT ddr_Model : public mem_AllocationOperators
{
public:
    /// A container as a slot holds it; empty where nothing is plugged in.
    using ContainerHandle = cow_COW<mdl_Extension, cow_Virtual<mdl_Extension>>;

    static constexpr std::size_t SlotCount = 11;

    // The prototypes of the containers of new models. Register keeps a copy of its own, in place of an
    // earlier one; UnRegister drops it.
    static void RegisterAdaptiveMeshControlContainer(const mdl_Extension& prototype)
    {
        Register(AdaptiveMeshControls, prototype);
    }
    static void UnRegisterAdaptiveMeshControlContainer() { UnRegister(AdaptiveMeshControls); }
    static void RegisterAmplitudeContainer(const mdl_Extension& prototype)
    {
        Register(Amplitudes, prototype);
    }
    static void UnRegisterAmplitudeContainer() { UnRegister(Amplitudes); }
    static void RegisterBeamProfileContainer(const mdl_Extension& prototype)
    {
        Register(BeamProfiles, prototype);
    }
    static void UnRegisterBeamProfileContainer() { UnRegister(BeamProfiles); }
    static void RegisterConstraintContainer(const mdl_Extension& prototype)
    {
        Register(Constraints, prototype);
    }
    static void UnRegisterConstraintContainer() { UnRegister(Constraints); }
    static void RegisterFilterContainer(const mdl_Extension& prototype) { Register(Filters, prototype); }
    static void UnRegisterFilterContainer() { UnRegister(Filters); }
    static void RegisterMaterialContainer(const mdl_Extension& prototype) { Register(Materials, prototype); }
    static void UnRegisterMaterialContainer() { UnRegister(Materials); }
    static void RegisterTableCollContainer(const mdl_Extension& prototype)
    {
        Register(TableCollections, prototype);
    }
    static void UnRegisterTableCollContainer() { UnRegister(TableCollections); }
    static void RegisterEventSeriesTypeCont(const mdl_Extension& prototype)
    {
        Register(EventSeriesTypes, prototype);
    }
    static void UnRegisterEventSeriesTypeCont() { UnRegister(EventSeriesTypes); }
    static void RegisterEventSeriesCont(const mdl_Extension& prototype)
    {
        Register(EventSeriesDatas, prototype);
    }
    static void UnRegisterEventSeriesCont() { UnRegister(EventSeriesDatas); }

    ddr_Model();
    /// A slot that the record leaves absent begins with the container registered now, as in a new model.
    /// Throws if a slot holds another class than the container registered for it.
    explicit ddr_Model(const cls_ReadVisitor& visitor);
    ddr_Model(const ddr_Model&) = default;
    ddr_Model& operator=(const ddr_Model&) = default;
    virtual ~ddr_Model();

    /// A copy under the same identity, which shares the containers; owned by the caller.
    virtual ddr_Model* Copy() const;
    virtual void DBWrite(const cls_WriteVisitor& visitor) const;
    virtual unsigned DynTypeId() const;
    /// A copy that shares no storage; owned by the caller.
    ddr_Model* DeepCopy() const;

    /// The model as it stands now, in constant time: the snapshot shares the containers, and what either side
    /// changes afterwards is that side's alone.
    ddr_ModelHandle Snapshot() const { return ddr_ModelHandle(Copy()); }
    /// Brings back what the snapshot holds, in constant time. The snapshot can be used again.
    void Restore(const ddr_Model& snapshot) { *this = snapshot; }

    // The repositories, owned by the model; null where nothing is plugged in. The Get form makes the
    // container private to this model first.
    mdl_Repository* GetAdaptiveMeshControls() { return Writable(AdaptiveMeshControls); }
    const mdl_Repository* ConstGetAdaptiveMeshControls() const { return Readable(AdaptiveMeshControls); }
    mdl_Repository* GetAmplitudes() { return Writable(Amplitudes); }
    const mdl_Repository* ConstGetAmplitudes() const { return Readable(Amplitudes); }
    mdl_Repository* GetBeamProfiles() { return Writable(BeamProfiles); }
    const mdl_Repository* ConstGetBeamProfiles() const { return Readable(BeamProfiles); }
    mdl_Repository* GetConnectors() { return Writable(Connectors); }
    const mdl_Repository* ConstGetConnectors() const { return Readable(Connectors); }
    mdl_Repository* GetConstraints() { return Writable(Constraints); }
    const mdl_Repository* ConstGetConstraints() const { return Readable(Constraints); }
    mdl_Repository* GetEventSeriesDatas() { return Writable(EventSeriesDatas); }
    const mdl_Repository* ConstGetEventSeriesDatas() const { return Readable(EventSeriesDatas); }
    mdl_Repository* GetEventSeriesTypes() { return Writable(EventSeriesTypes); }
    const mdl_Repository* ConstGetEventSeriesTypes() const { return Readable(EventSeriesTypes); }
    mdl_Repository* GetFilters() { return Writable(Filters); }
    const mdl_Repository* ConstGetFilters() const { return Readable(Filters); }
    mdl_Repository* GetMaterials() { return Writable(Materials); }
    const mdl_Repository* ConstGetMaterials() const { return Readable(Materials); }
    mdl_Repository* GetTableCollections() { return Writable(TableCollections); }
    const mdl_Repository* ConstGetTableCollections() const { return Readable(TableCollections); }
    mdl_Repository* GetTasks() { return Writable(Tasks); }
    const mdl_Repository* ConstGetTasks() const { return Readable(Tasks); }

    /// The words of all slots, as "amplitudes", in stored order, whether or not something is plugged in.
    static const std::array<const char*, SlotCount>& Slots();
    /// The repository of a slot by its word; null where nothing is plugged in or no slot has the word.
    mdl_Repository* Get(const cow_String& word);
    const mdl_Repository* ConstGet(const cow_String& word) const;

    static constexpr unsigned TypeId() { return 0xA0002; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);
    /// Gives back one share of a counted holder of a model.
    static void CowDtor(cls_ErasedHandle* holder);

private:
    /// Positions are stored as attribute indices, so a slot never moves and a new one comes last.
    enum Slot : std::size_t
    {
        AdaptiveMeshControls,
        Amplitudes,
        BeamProfiles,
        Connectors,
        Constraints,
        EventSeriesDatas,
        EventSeriesTypes,
        Filters,
        Materials,
        TableCollections,
        Tasks
    };
    static_assert(Tasks + 1 == SlotCount);

    static void Register(Slot slot, const mdl_Extension& prototype);
    static void UnRegister(Slot slot);

    mdl_Repository* Writable(std::size_t slot);
    const mdl_Repository* Readable(std::size_t slot) const;

    std::array<ContainerHandle, SlotCount> containers;
    cls_Uid uid;
};
