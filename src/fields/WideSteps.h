#pragma once

#include <cstdlib>  // tells __GLIBC__, whose loader makes the choice

/// Before a function with loops over many like values: it is compiled twice, also for the wider
/// registers that processors have had since 2013 (x86-64-v3), and the program takes the one that
/// suits the machine it starts on.
#if defined(__x86_64__) && defined(__GLIBC__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__)
#define TARNVIEW_WIDE_STEPS [[gnu::target_clones("arch=x86-64-v3", "default")]]
#else
#define TARNVIEW_WIDE_STEPS
#endif
