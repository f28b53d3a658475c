#include "dbc_InputDatabase.h"
#include "dbc_OutputDatabase.h"

dbc_Row::~dbc_Row() = default;

dbc_Table::~dbc_Table() = default;

dbc_InputDatabase::~dbc_InputDatabase() = default;

dbc_OutputDatabase::~dbc_OutputDatabase() = default;
