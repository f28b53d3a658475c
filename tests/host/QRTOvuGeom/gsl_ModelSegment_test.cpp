#include "gsl_ModelSegment.h"

#include "ftr_FeatureList.h"

#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>

namespace
{
const gsl_Point origin;
const gsl_Point corner{1.0, 2.0, 3.0};

gsl_ModelSegment Segment(const gsl_Point& from, const gsl_Point& to)
{
    return gsl_ModelSegment(gsl_Dot(from), gsl_Dot(to));
}

/// Moves one point, leaves the others.
class OneMove : public ftr_FeatureList
{
public:
    OneMove(const gsl_Point& was, const gsl_Point& now) : was(was), now(now) {}

    gsl_Point Regenerated(const gsl_Point& stored) const override { return stored == was ? now : stored; }

private:
    gsl_Point was;
    gsl_Point now;
};

/// Has lost the feature of one point.
class OneLoss : public ftr_FeatureList
{
public:
    explicit OneLoss(const gsl_Point& lost) : lost(lost) {}

    gsl_Point Regenerated(const gsl_Point& stored) const override
    {
        if (stored == lost)
            throw std::runtime_error("no such feature");
        return gsl_Point{9.0, 9.0, 9.0};
    }

private:
    gsl_Point lost;
};

TEST(gsl_Dot, StandsAtTheOriginUnlessToldElse)
{
    EXPECT_EQ(gsl_Dot().GetPoint(), origin);
    EXPECT_EQ(gsl_Dot(corner).GetPoint(), corner);
}

TEST(gsl_Dot, EqualityIsThatOfThePoints)
{
    EXPECT_EQ(gsl_Dot(), gsl_Dot(origin));
    EXPECT_EQ(gsl_Dot(corner), gsl_Dot(corner));
    EXPECT_FALSE(gsl_Dot(corner) == gsl_Dot());
    EXPECT_TRUE(gsl_Dot(corner) != gsl_Dot());
}

TEST(gsl_Dot, ANaNIsEqualToNothing)
{
    const gsl_Dot dot(gsl_Point{std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0});
    EXPECT_FALSE(dot == dot);
}

TEST(gsl_ModelSegment, AnEmptyOneHasNoLength)
{
    const gsl_ModelSegment empty;
    EXPECT_EQ(empty.From(), origin);
    EXPECT_EQ(empty.To(), origin);
    EXPECT_EQ(empty.Direction(), gsl_Vector());
    EXPECT_EQ(empty.Length(), 0.0);
}

TEST(gsl_ModelSegment, DirectionRunsFromFirstToSecondInFullLength)
{
    const gsl_ModelSegment segment = Segment(corner, gsl_Point{1.0, -2.0, 6.0});
    EXPECT_EQ(segment.Direction(), (gsl_Vector{0.0, -4.0, 3.0}));
    EXPECT_DOUBLE_EQ(segment.Length(), 5.0);
}

TEST(gsl_ModelSegment, EqualityLooksAtBothPointsInTheirOrder)
{
    EXPECT_EQ(Segment(origin, corner), Segment(origin, corner));
    EXPECT_FALSE(Segment(origin, corner) == Segment(corner, origin));
    EXPECT_FALSE(Segment(origin, corner) == Segment(origin, origin));
    EXPECT_FALSE(Segment(origin, corner) == Segment(corner, corner));
}

TEST(gsl_ModelSegment, RegenerateMovesEachPointByTheFeatures)
{
    const gsl_Point moved{5.0, 5.0, 5.0};
    gsl_ModelSegment segment = Segment(origin, corner);
    const OneMove end(corner, moved);
    segment.Regenerate(&end);
    EXPECT_EQ(segment, Segment(origin, moved));
    const OneMove start(origin, corner);
    segment.Regenerate(&start);
    EXPECT_EQ(segment, Segment(corner, moved));
}

TEST(gsl_ModelSegment, RegenerateWithoutFeaturesChangesNothing)
{
    gsl_ModelSegment segment = Segment(origin, corner);
    segment.Regenerate(nullptr);
    EXPECT_EQ(segment, Segment(origin, corner));
}

TEST(gsl_ModelSegment, AFailedRegenerateChangesNothing)
{
    gsl_ModelSegment segment = Segment(origin, corner);
    const OneLoss features(corner);
    EXPECT_THROW(segment.Regenerate(&features), std::runtime_error);
    EXPECT_EQ(segment, Segment(origin, corner));
}
} // namespace
