#include "dbc_OldClassVersion.h"

dbc_OldClassVersion::~dbc_OldClassVersion() = default;

void dbc_OldClassVersion::ClassesToDelete(dbc_DatabaseConverter&) {}

void dbc_OldClassVersion::ClassesToRename(dbc_DatabaseConverter&) {}

void dbc_OldClassVersion::TablesToRename(dbc_DatabaseConverter&) {}
