#include "QRTVdbAttrEO2.h"
#include "kamC_Tabular.h"
#include "nex_Exceptions.h"

#include <cstdio>

// Uses the installed library as any program would: brings it up, makes a value, has it checked, lets it go.
int main()
{
    int tally = 0;
    QRTVdbAttrEO2_initialize(tally);
    if (tally <= 0)
    {
        std::puts("the library did not come up");
        return 1;
    }

    bool refused = false;
    {
        kamC_Tabular ramp;
        try
        {
            ramp.AssertValid();
        }
        catch (const nex_PrimException<atr_String, 1>&)
        {
            refused = true;
        }

        cow_2DArray<double> data(2, 2);
        data.Get(1, 0) = 1.0;
        data.Get(1, 1) = 1.0;
        ramp.data = data;
        ramp.AssertValid();
    }

    QRTVdbAttrEO2_finalize(tally);
    if (tally != 0)
    {
        std::printf("%d components were left up\n", tally);
        return 1;
    }
    std::puts(refused ? "one amplitude refused, one accepted" : "an empty table was accepted");
    return refused ? 0 : 1;
}
