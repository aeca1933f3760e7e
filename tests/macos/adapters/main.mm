// Runs the adapter tests with a home folder and a display of their own.
// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "tests/linux/TemporaryFolder.h"
#import "tests/macos/adapters/AdapterTest.h"

// GNUstep's libraries leak a little memory at exit; the stand-ins count the adapters' objects.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "detect_leaks=0";
}

namespace {

// `file` contains the display number.
void useDisplay(const char* file) {
    std::string number;
    if (file != nullptr && std::ifstream(file) >> number) {
        setenv("DISPLAY", (":" + number).c_str(), 1);
    }
}

// Sets the command line that GNUstep sees: the user's first language is German.
void setArguments() {
    std::string program = std::filesystem::read_symlink("/proc/self/exe");
    std::string name = "-NSLanguages";
    std::string languages = "(de, en)";
    std::array<char*, 3> words{program.data(), name.data(), languages.data()};
    [NSProcessInfo initializeWithArguments:words.data()
                                     count:static_cast<int>(words.size())
                               environment:environ];
}

}  // namespace

int main(int argumentCount, char** arguments) {
    testing::InitGoogleMock(&argumentCount, arguments);
    const brisel::tests::TemporaryFolder home;
    for (const char* variable : {"HOME", "TMPDIR"})
        setenv(variable, home.path().c_str(), 1);
    useDisplay(getenv("BRISEL_TEST_DISPLAY"));
    setArguments();
    return RUN_ALL_TESTS();
}
