#include "cmd_Primitive.h"

#include "LibraryEnvironment.h"
#include "cmd_Error.h"
#include "cmd_Session.h"
#include "kamC_Amplitude.h"
#include "omu_Arguments.h"
#include "omu_PrimDouble.h"
#include "omu_PrimList.h"
#include "omu_PrimNone.h"
#include "omu_PrimString.h"

#include <gtest/gtest.h>

namespace
{

omu_PrimTuple Row(double time, double amplitude)
{
    omu_PrimTuple row(2, '(');
    row.Put(time);
    row.Put(amplitude);
    return row;
}

TEST(Primitive, BecomesAValue)
{
    omu_PrimTuple tuple(7, '(');
    tuple.Put(true);
    tuple.Put(-7);
    tuple.Put(0.5);
    tuple.Put("it's");
    tuple.Put(omu_PrimNone());
    tuple.Put(omu_PrimEnum<kamC_Amplitude::TimeSpanEnm, 1>(kamC_Amplitude::TimeSpanEnm::TOTAL));
    omu_PrimList list;
    list.Add(Row(1.0, 2.0));
    tuple.Put(list);
    EXPECT_EQ("(True, -7, 0.5, \"it's\", None, TOTAL, [(1.0, 2.0)])", cmd_ValueOfPrimitive(tuple).Text());
}

TEST(Primitive, ArgumentsMakeACommand)
{
    omu_PrimTuple data(2, '(');
    data.Put(Row(0.0, 0.0));
    data.Put(Row(1.0, 1.0));
    omu_Arguments arguments(3);
    arguments.PutKeyword("name", omu_PrimString("ramp"));
    arguments.PutKeyword("timeSpan",
                         omu_PrimEnum<kamC_Amplitude::TimeSpanEnm, 1>(kamC_Amplitude::TimeSpanEnm::TOTAL));
    arguments.PutKeyword("data", data);
    cmd_Session session;
    session.Make(cmd_Path(), "TabularAmplitude", cmd_ArgumentsOfPrimitives(arguments));
    EXPECT_EQ("model.TabularAmplitude(name='ramp', timeSpan=TOTAL, data=((0.0, 0.0), (1.0, 1.0)))",
              session.NextUndo()->line);
}

TEST(Primitive, ArgumentsByPositionAreRefused)
{
    omu_Arguments arguments(1);
    arguments.Put("ramp");
    try
    {
        cmd_ArgumentsOfPrimitives(arguments);
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const cmd_Error& error)
    {
        EXPECT_STREQ("expected arguments by keyword, as smooth=0.25, found 'ramp'", error.what());
    }
}

} // namespace
