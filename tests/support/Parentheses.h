#pragma once

#include "atr_Catalogue.h"

#include <string>

/// A language that puts each text in parentheses, in force as long as it lives.
class Parentheses final : public atr_Catalogue
{
public:
    Parentheses() : before(atr_setCatalogue(this)) {}
    ~Parentheses() override { atr_setCatalogue(before); }

    const char* Lookup(const char* text) const override
    {
        translation = "(" + std::string(text) + ")";
        return translation.c_str();
    }

private:
    mutable std::string translation;
    const atr_Catalogue* before;
};
