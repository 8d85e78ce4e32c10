// The main of tests with windows.
#include <gtest/gtest.h>

#include "forms/Application.h"
#include "support/Stage.h"

// On a real screen the D-Bus library keeps a buffer until the process ends. That is no leak.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { return "leak:libdbus-1"; }

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const sorvane::test::Stage stage;
    sorvane::forms::Application application(argc, argv);
    stage.Set();
    return RUN_ALL_TESTS();
}
