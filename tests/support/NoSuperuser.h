// Lets the superuser run tests about the rights of files.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace sorvane {

// The rights of files do not stop the superuser. So the process is another user as long as this object
// exists.
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
