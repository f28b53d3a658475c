#include "dbc_ClassConverter.h"

dbc_ClassConverter& dbc_ClassConverter::BindConversionFunction(dbc_ConversionFunction bound,
                                                               const char* functionName)
{
    conversion = bound;
    conversionName = functionName;
    return *this;
}

dbc_ClassConverter& dbc_ClassConverter::BindFinalizeFunction(dbc_FinalizeFunction bound,
                                                             const char* functionName)
{
    finalizer = bound;
    finalizeName = functionName;
    return *this;
}
