#pragma once

#include "cls_Module.h"

/// Rules of beam profiles. Some codes are raised by no rule here; they serve callers outside.
enum kbpC_ErrorEnm : int
{
    kbpC_BadArea = 0,
    kbpC_BadI11 = 1,
    kbpC_I12WithoutI22 = 2,
    kbpC_NegativeI22 = 3,
    kbpC_UnknownProfile = 4,
    kbpC_NegativeJ = 5,
    kbpC_BadI12 = 6,
    kbpC_BadHeight = 7,
    kbpC_BadWidth = 8,
    kbpC_BadRadius = 9,
    kbpC_BadThickness = 10,
    kbpC_BadThicknesses = 11,
    kbpC_ConnectedZeroThicknesses = 12,
    kbpC_WallsFillWidth = 13,
    kbpC_WallsFillHeight = 14,
    kbpC_WallFillsHalfWidth = 15,
    kbpC_WallFillsHalfHeight = 16,
    kbpC_WallFillsRadius = 17,
    kbpC_BadWeb = 18,
    kbpC_NoFlange = 19,
    kbpC_BadFirstFlange = 20,
    kbpC_BadSecondFlange = 21,
    kbpC_WallFillsHexagon = 22,
    kbpC_BadA = 23,
    kbpC_BadB = 24,
    kbpC_BadC = 25,
    kbpC_BadH = 26,
    kbpC_BadT = 27,
    kbpC_BadT1 = 28,
    kbpC_BadT2 = 29,
    kbpC_BadTf = 30,
    kbpC_BadTw = 31,
    kbpC_T1FillsB = 32,
    kbpC_T1FillsH = 33,
    kbpC_T2FillsA = 34,
    kbpC_T2FillsB = 35,
    kbpC_TfFillsH = 36,
    kbpC_TwFillsB = 37,
    kbpC_BadSegmentCount = 38,
    kbpC_T3FillsFlange = 39,
    kbpC_FlangesFillHeight = 40,
    kbpC_T3FillsHalfB1 = 41
};

/// Messages of the beam profile rules.
OVR_EXPORT extern const cls_MessageTable kbpC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void kbpC_Assert(bool condition, kbpC_ErrorEnm code);
