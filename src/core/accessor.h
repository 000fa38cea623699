#pragma once

// Declares the accessor that bears a class's own name and returns its one instance.
// A function named after a class hides the class's name, which is the point here.
#define VORKAN_ACCESSOR(Class)                                                                     \
    _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wshadow\"") class Class&     \
    Class();                                                                                       \
    _Pragma("GCC diagnostic pop")
