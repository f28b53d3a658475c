#pragma once

#include "QRTVdbAttrEO2.h"

#include <gtest/gtest.h>

/// Brings the library up once for a test program and down again at its end.
class LibraryEnvironment : public testing::Environment
{
public:
    /// Brings the library up now, if it is not: test cases that are made from its classes need it before any
    /// test.
    static void Require()
    {
        static int tally = 0;
        if (tally == 0)
            QRTVdbAttrEO2_initialize(tally);
    }

    void SetUp() override { Require(); }
};

inline testing::Environment* const libraryEnvironment =
    testing::AddGlobalTestEnvironment(new LibraryEnvironment);
