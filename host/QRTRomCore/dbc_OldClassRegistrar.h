#pragma once

#include "dbc_OldClassVersion.h"
#include "omi_Singleton.h"

#include <cstddef>
#include <typeinfo>
#include <vector>

/// Holds all old class versions, in order of registration.
class OVR_EXPORT dbc_OldClassRegistrar : public omi_SingletonBase<dbc_OldClassRegistrar>
{
public:
    using Holder = cow_CountedHld<dbc_OldClassVersion>;

    dbc_OldClassRegistrar();
    ~dbc_OldClassRegistrar();

    /// Takes ownership of the holder. The mask is kept as it is given.
    void Register(Holder* holder, unsigned mask);

    /// Whether a version of this very class is registered.
    bool Has(const std::type_info& versionClass) const;

    std::size_t Count() const { return versions.size(); }

    dbc_OldClassVersion& Version(std::size_t position) const
    {
        return const_cast<dbc_OldClassVersion&>(*versions[position].holder->ConstGet());
    }

    unsigned Mask(std::size_t position) const { return versions[position].mask; }

private:
    struct Registration
    {
        Holder* holder;
        unsigned mask;
    };

    std::vector<Registration> versions;
};
