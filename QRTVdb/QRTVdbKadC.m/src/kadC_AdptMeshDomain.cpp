#include "kadC_AdptMeshDomain.h"

#include "kadC_assert.h"

CLS_IMPLEMENT(kadC_AdptMeshDomain)

void kadC_AdptMeshDomain::AssertValid() const
{
    kadC_Assert(frequency > 0, kadC_BadFrequency);
    // No sweep at all passes, though the message speaks of more than zero.
    kadC_Assert(initialRemeshingSweeps >= 0, kadC_BadInitialSweeps);
    kadC_Assert(sweepsPerIncrement > 0, kadC_BadSweeps);
}
