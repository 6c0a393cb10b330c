#pragma once

// libtvpolicy is built with hidden visibility; what carries TVPOLICY_API is its interface.
#define TVPOLICY_API __attribute__((visibility("default")))
