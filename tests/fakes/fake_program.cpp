#include "fakes/fake_program.h"

#include <cstdlib>
#include <filesystem>

#include "platform/program.h"

namespace {

// Made at the first use, gone with the process.
struct Own_Folder {
    std::string path;

    Own_Folder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tonebench-test-XXXXXX").string();
        path = mkdtemp(pattern.data()) == nullptr ? std::string() : pattern;
    }
    ~Own_Folder() {
        std::error_code error;
        std::filesystem::remove_all(path, error);
    }
    Own_Folder(const Own_Folder&) = delete;
    Own_Folder& operator=(const Own_Folder&) = delete;
};

}  // namespace

std::string Test_Folder() {
    static const Own_Folder folder;
    return folder.path;
}

std::string Program_Directory() {
    return Test_Folder();
}
