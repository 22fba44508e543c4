// While it lives, the test runs without the rights of a system's administrator, whom no file refuses.
#pragma once

#include <unistd.h>

#include <filesystem>

#include "fakes/fake_program.h"

class Plain_User {
  public:
    Plain_User() {
        if (::geteuid() != 0) return;
        bool given = ::chown(Test_Folder().c_str(), Nobody, Nobody) == 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(Test_Folder()))
            given = ::lchown(entry.path().c_str(), Nobody, Nobody) == 0 && given;
        was_root_ = given && ::seteuid(Nobody) == 0;
    }
    ~Plain_User() {
        if (was_root_) (void)!::seteuid(0);
    }
    Plain_User(const Plain_User&) = delete;
    Plain_User& operator=(const Plain_User&) = delete;

  private:
    static constexpr uid_t Nobody = 65534;

    bool was_root_ = false;
};
