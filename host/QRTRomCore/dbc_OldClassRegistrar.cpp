#include "dbc_OldClassRegistrar.h"

#include <algorithm>

dbc_OldClassRegistrar::dbc_OldClassRegistrar() = default;

dbc_OldClassRegistrar::~dbc_OldClassRegistrar()
{
    for (const Registration& registration : versions)
        cow_DeleteHolder<dbc_OldClassVersion>(reinterpret_cast<cow_ErasedCOW*>(registration.holder));
}

void dbc_OldClassRegistrar::Register(Holder* holder, unsigned mask)
{
    versions.push_back({holder, mask});
}

bool dbc_OldClassRegistrar::Has(const std::type_info& versionClass) const
{
    const auto isSame = [&versionClass](const Registration& registration)
    {
        const dbc_OldClassVersion& version = *registration.holder->ConstGet();
        return typeid(version) == versionClass;
    };
    return std::any_of(versions.begin(), versions.end(), isSame);
}
