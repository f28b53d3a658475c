#pragma once

#include "omi_Singleton.h"

class dbc_DatabaseConverter;

/// Where functions that are handed no converter find the one that is at work.
class OVR_EXPORT dbc_DatabaseConverterHolder : public omi_SingletonBase<dbc_DatabaseConverterHolder>
{
public:
    dbc_DatabaseConverterHolder();
    ~dbc_DatabaseConverterHolder();

    /// Null while no upgrade runs.
    dbc_DatabaseConverter* GetDatabaseConverter() const { return converter; }
    void SetDatabaseConverter(dbc_DatabaseConverter* newConverter) { converter = newConverter; }

private:
    dbc_DatabaseConverter* converter = nullptr;
};
