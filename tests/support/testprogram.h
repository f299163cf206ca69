#pragma once

#include <initializer_list>

/// One of the tests of a program, and its main().
struct NamedTest
{
    const char *name;
    int (*run)(int argc, char **argv);
};

/// Runs the test by whose name the program is called, and returns its exit status; 2 where there is
/// none.
int runTestByName(std::initializer_list<NamedTest> tests, int argc, char **argv);
