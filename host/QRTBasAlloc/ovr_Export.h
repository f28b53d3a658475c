#pragma once

/// Marks a class or function that other shared libraries may use; everything else stays hidden.
#define OVR_EXPORT __attribute__((visibility("default")))
