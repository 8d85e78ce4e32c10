// Rights of files, tested by whoever runs the tests.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace sorvane {

// Rights of the file count for nothing with the superuser: for the time of a test it is somebody else.
class NoSuperuser {
  public:
    NoSuperuser() : was_(geteuid()) {
        constexpr uid_t Nobody = 65534;
        if (was_ == 0) changed_ = seteuid(Nobody) == 0;
    }
    NoSuperuser(const NoSuperuser&) = delete;
    NoSuperuser& operator=(const NoSuperuser&) = delete;
    ~NoSuperuser() {
        if (!changed_) return;
        EXPECT_EQ(seteuid(was_), 0);
    }

  private:
    uid_t was_;
    bool changed_ = false;
};

}  // namespace sorvane
