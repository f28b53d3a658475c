#include "omu_ShortcutBase.h"

omu_ShortcutBase::~omu_ShortcutBase() = default;
