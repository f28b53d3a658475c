#include "ddr_Model.h"

#include "DDB_DeepCopyPtr.h"
#include "cls_ClassRegistrar.h"
#include "cls_RootAdapter.h"
#include "mdl_Repository.h"
#include "nex_canDynamicCastRef.h"

namespace
{
constexpr int modelVersion = 401;

constexpr std::array<const char*, ddr_Model::SlotCount> slotWords{
    "adaptiveMeshControls", "amplitudes",       "profiles", "connectors", "constraints",
    "eventSeriesDatas",     "eventSeriesTypes", "filters",  "materials",  "tableCollections",
    "optimizationTasks"};

cls_FieldHandle SlotField(std::size_t slot)
{
    return cls_FieldHandle(static_cast<int>(slot), slotWords[slot]);
}

/// Slot of a word; past the last if there is none.
std::size_t FindSlot(const cow_String& word)
{
    std::size_t slot = 0;
    while (slot < slotWords.size() && !(word == slotWords[slot]))
        ++slot;
    return slot;
}

using Containers = std::array<ddr_Model::ContainerHandle, ddr_Model::SlotCount>;

Containers& Prototypes()
{
    // Never destroyed: what is still registered when the process ends may belong to a library that is gone by
    // then.
    static Containers* const prototypes = new Containers;
    return *prototypes;
}

ddr_Model::ContainerHandle ReadSlot(const cls_ReadVisitor& visitor, std::size_t slot)
{
    const cls_ErasedHandle& stored = visitor.Memento().GetObject(SlotField(slot), mdl_Extension::TypeId());
    const auto& container = cow_Restored<mdl_Extension, cow_Virtual<mdl_Extension>>(stored);
    const ddr_Model::ContainerHandle& prototype = Prototypes()[slot];
    if (container.IsNull())
        return prototype;
    // A record can name any extension; users of the slot rely on its class.
    if (!prototype.IsNull())
        nex_canDynamicCastRef(prototype->DynTypeId(), container->DynTypeId(), __FILE__, __LINE__);
    return container;
}

void WriteSlot(const cls_WriteVisitor& visitor, std::size_t slot, const ddr_Model::ContainerHandle& container)
{
    if (container.IsNull())
    {
        visitor.Memento().PutAbsent(SlotField(slot));
        return;
    }
    const cls_WriteVisitor nested(visitor, SlotField(slot), &cow_Erased(container), nullptr);
    container->DBWrite(nested);
}
} // namespace

void ddr_Model::Register(Slot slot, const mdl_Extension& prototype)
{
    Prototypes()[slot] = ContainerHandle(prototype);
}

void ddr_Model::UnRegister(Slot slot)
{
    Prototypes()[slot] = ContainerHandle();
}

ddr_Model::ddr_Model() : containers(Prototypes())
{
    uid.AllocateUid();
}

ddr_Model::ddr_Model(const cls_ReadVisitor& visitor) : uid(visitor.GetUid())
{
    for (std::size_t slot = 0; slot < SlotCount; ++slot)
        containers[slot] = ReadSlot(visitor, slot);
}

ddr_Model::~ddr_Model() = default;

ddr_Model* ddr_Model::Copy() const
{
    return new ddr_Model(*this);
}

void ddr_Model::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    for (std::size_t slot = 0; slot < SlotCount; ++slot)
        WriteSlot(visitor, slot, containers[slot]);
}

unsigned ddr_Model::DynTypeId() const
{
    return TypeId();
}

ddr_Model* ddr_Model::DeepCopy() const
{
    return static_cast<ddr_Model*>(DDB_DeepCopyPtr(this, DynTypeId()));
}

mdl_Repository* ddr_Model::Writable(std::size_t slot)
{
    ContainerHandle& container = containers[slot];
    return container.IsNull() ? nullptr : container.Get()->GetValue();
}

const mdl_Repository* ddr_Model::Readable(std::size_t slot) const
{
    const ContainerHandle& container = containers[slot];
    return container.IsNull() ? nullptr : container->ConstGetValue();
}

const std::array<const char*, ddr_Model::SlotCount>& ddr_Model::Slots()
{
    return slotWords;
}

mdl_Repository* ddr_Model::Get(const cow_String& word)
{
    const std::size_t slot = FindSlot(word);
    return slot < SlotCount ? Writable(slot) : nullptr;
}

const mdl_Repository* ddr_Model::ConstGet(const cow_String& word) const
{
    const std::size_t slot = FindSlot(word);
    return slot < SlotCount ? Readable(slot) : nullptr;
}

void ddr_Model::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    cls_ClassMetadata* metadata =
        registrar.AddClassMD(new cls_RootAdapter<ddr_Model>("ddr_Model", modelVersion))->AddDtor(CowDtor);
    for (std::size_t slot = 0; slot < SlotCount; ++slot)
        metadata->AddAttribute(SlotField(slot), cls_TypeObject, mdl_Extension::TypeId(), cls_CollectionNone);
}

void ddr_Model::CowDtor(cls_ErasedHandle* holder)
{
    cow_DeleteHolder<ddr_Model>(holder);
}
