#include "dbc_DatabaseConverterHolder.h"

dbc_DatabaseConverterHolder::dbc_DatabaseConverterHolder() = default;

dbc_DatabaseConverterHolder::~dbc_DatabaseConverterHolder() = default;
