#include "dbc_OldClassRegistrar.h"

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
