#include "app_Error.h"

#include <algorithm>

std::string app_OnOneLine(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}
