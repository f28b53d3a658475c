#include "tst_EveryKind.h"

#include "LibraryEnvironment.h"
#include "cls_MetadataRegistrar.h"
#include "typ_ArchCompTable.h"

CLS_IMPLEMENT(tst_Leaf)
CLS_IMPLEMENT(tst_Branch)
CLS_IMPLEMENT(tst_Twig)
CLS_IMPLEMENT(tst_Wing)
CLS_IMPLEMENT(tst_EveryKind)
CLS_IMPLEMENT(tst_TwigHolder)

namespace
{

constexpr unsigned short moduleNumber = tst_EveryKind::TypeId() >> 16;

constexpr typ_Entry types[] = {{0, cls_RootId, nullptr},         {7, cls_RootId, "tst_Leaf"},
                               {7, cls_RootId, "tst_Branch"},    {7, tst_Branch::TypeId(), "tst_Twig"},
                               {7, cls_RootId, "tst_EveryKind"}, {7, tst_Twig::TypeId(), "tst_Wing"},
                               {7, cls_RootId, "tst_TwigHolder"}};

bool Register()
{
    LibraryEnvironment::Require();
    typ_ArchCompTable::InsertEntry(moduleNumber, typ_ArchCompEntry(types, std::size(types)));
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(tst_Leaf::InitializeMetadata);
    registrar.initClassMetadata(tst_Branch::InitializeMetadata);
    registrar.initClassMetadata(tst_Twig::InitializeMetadata);
    registrar.initClassMetadata(tst_Wing::InitializeMetadata);
    registrar.initClassMetadata(tst_EveryKind::InitializeMetadata);
    return true;
}

} // namespace

void tst_RequireEveryKind()
{
    [[maybe_unused]] static const bool isRegistered = Register();
}

void tst_RequireTwigHolder()
{
    tst_RequireEveryKind();
    omi_Singleton<cls_MetadataRegistrar>::Instance()->initClassMetadata(tst_TwigHolder::InitializeMetadata);
}
