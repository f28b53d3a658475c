#include "dbc_Utils.h"

dbc_Utils::dbc_Utils() = default;

dbc_Utils::~dbc_Utils() = default;
