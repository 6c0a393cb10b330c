#pragma once

// Included from here by embedders; the definitions live with the other shared pieces.
#include <tvpolicy/base/Signal.h>
