#include "QRTBasException.h"

#include <cstdlib>

QRTBasException::~QRTBasException() = default;

void QRTBasException::Throw(const char* sourceFile, int sourceLine)
{
    file = sourceFile;
    line = sourceLine;
    Raise();
    // Only a Raise that breaks its word comes back.
    std::abort();
}

void QRTBasException::Raise() const
{
    throw QRTBasException(*this);
}
