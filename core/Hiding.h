// Macros around an operation that hides one of the same name in a base class on purpose.
#pragma once

// Such a class has both in slots of their own, told apart by the parameters. With a using-declaration a call
// would be ambiguous, so compilers are kept from asking for one: some look at the hidden operation, others at
// the hiding one.
#ifdef __GNUC__
#define TESSEL_HIDING_BEGIN \
    _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Woverloaded-virtual\"")
#define TESSEL_HIDING_END _Pragma("GCC diagnostic pop")
#else
#define TESSEL_HIDING_BEGIN
#define TESSEL_HIDING_END
#endif
