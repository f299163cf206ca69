#include "testprogram.h"

#include <cstdio>
#include <filesystem>
#include <string>

int runTestByName(std::initializer_list<NamedTest> tests, int argc, char **argv)
{
    const std::string called = std::filesystem::path(argv[0]).stem().string();
    for (const NamedTest &test : tests) {
        if (called == test.name) {
            return test.run(argc, argv);
        }
    }
    std::fprintf(stderr,
                 "%s: no test of that name; the program has to be called by one of these:\n",
                 argv[0]);
    for (const NamedTest &test : tests) {
        std::fprintf(stderr, "    %s\n", test.name);
    }
    return 2;
}
