// In each test program of a build with SORVANE_REACH: what each test reaches is written down.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <string>

#include "support/reach/Reach.h"

namespace {

// A process that a test has started speaks for that test.
class ReachListener final : public ::testing::EmptyTestEventListener {
  public:
    ReachListener() {
        if (const char* parent = std::getenv("SORVANE_REACH_TEST")) parent_ = parent;
    }

  private:
    void OnTestStart(const ::testing::TestInfo& test) override {
        sorvane::test::FlushReached("-", 0);
        setenv("SORVANE_REACH_TEST", NameOf(test).c_str(), 1);
        start_ = std::clock();
    }
    void OnTestEnd(const ::testing::TestInfo& test) override {
        const long milliseconds = (std::clock() - start_) / (CLOCKS_PER_SEC / 1000);
        const bool passed = test.result()->Passed();
        sorvane::test::FlushReached((passed ? NameOf(test) : "!" + NameOf(test)).c_str(), milliseconds);
        if (parent_.empty()) unsetenv("SORVANE_REACH_TEST");
    }
    std::string NameOf(const ::testing::TestInfo& test) const {
        if (!parent_.empty()) return parent_;
        return std::string(program_invocation_short_name) + ':' + test.test_suite_name() + '.' + test.name();
    }
    std::string parent_;
    std::clock_t start_ = 0;
};

const bool Listening = [] {
    ::testing::UnitTest::GetInstance()->listeners().Append(new ReachListener);
    return true;
}();

}  // namespace
