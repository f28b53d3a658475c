#include "kcoC_assert.h"

#include "ModuleTest.h"

namespace
{

TEST(kcoC_Assert, ThrowsTheMessageOfItsCode)
{
    CheckMessages(kcoC_Assert, "QRTVdb/QRTVdbKcoC.m/src/kcoC_assert",
                  {
                      "Equation must have two or more terms.",
                      "The Cosntraint container is empty.",
                      "Constraint does not exist.",
                      "Unable to copy unknown constraint type.",
                      "Degree of freedom must be greater than zero.",
                      "The main portion of the Tie constraint must be a surface.",
                      "Set to adjust for Tie-constraint overclosure is invalid.",
                      "Rotational DOF's cannot be tied in an Explicit analysis.",
                      ("For the distributing constraint, all displacement degrees of freedom\nneed to be "
                       "constrained."),
                      "The display body constraint must have a valid instance.",
                  });
}

} // namespace
