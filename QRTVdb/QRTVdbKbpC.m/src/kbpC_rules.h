#pragma once

#include "kbpC_assert.h"

// Rules that an I, a channel and a hat share. Each throws through kbpC_Assert.

/// A positive height and web, at least one flange, and a positive thickness of what is there. True if both
/// flanges are there. A width that is not a number is no flange.
template <class Profile>
bool kbpC_AssertFlanges(const Profile& profile)
{
    kbpC_Assert(profile.h > 0.0, kbpC_BadHeight);
    kbpC_Assert(profile.t3 > 0.0, kbpC_BadWeb);
    const bool hasFirst = profile.b1 > 0.0;
    const bool hasSecond = profile.b2 > 0.0;
    kbpC_Assert(hasFirst || hasSecond, kbpC_NoFlange);
    if (!hasFirst)
        kbpC_Assert(profile.t2 > 0.0, kbpC_BadSecondFlange);
    else if (!hasSecond)
        kbpC_Assert(profile.t1 > 0.0, kbpC_BadFirstFlange);
    else
        kbpC_Assert(profile.t1 > 0.0 && profile.t2 > 0.0, kbpC_BadThicknesses);
    return hasFirst && hasSecond;
}

/// Both flanges fit into the height, and so does twice either of them.
template <class Profile>
void kbpC_AssertFlangesFit(const Profile& profile)
{
    kbpC_Assert(profile.h > profile.t1 + profile.t2, kbpC_FlangesFillHeight);
    kbpC_Assert(profile.h > 2.0 * profile.t1, kbpC_WallFillsHalfHeight);
    kbpC_Assert(profile.h > 2.0 * profile.t2, kbpC_WallFillsHalfHeight);
}
