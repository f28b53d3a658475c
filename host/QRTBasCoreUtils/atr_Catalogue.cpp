#include "atr_Catalogue.h"

#include <utility>

namespace
{
const atr_Catalogue* current = nullptr;
}

atr_Catalogue::~atr_Catalogue() = default;

const atr_Catalogue* atr_getCatalogue()
{
    return current;
}

const atr_Catalogue* atr_setCatalogue(const atr_Catalogue* catalogue)
{
    return std::exchange(current, catalogue);
}
