#pragma once

/// What a double attribute holds that is not set: the largest finite double.
inline constexpr double cls_UnsetDouble = 1.7976931348623157e308;
/// What an integer attribute holds that is not set.
inline constexpr int cls_UnsetInt = 2147483647;
