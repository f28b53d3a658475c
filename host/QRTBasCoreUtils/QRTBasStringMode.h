#pragma once

/// How a text operation treats its text. The one mode in use is 0.
using QRTBasStringMode = int;
