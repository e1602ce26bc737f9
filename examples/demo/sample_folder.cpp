#include "sample_folder.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

#include <unistd.h>

namespace kvt_demo {

namespace {

namespace fs = std::filesystem;

// A mix that shows what the widgets do with names: several dots, a
// leading dot, no dot at all, and a directory among the files.
const char *const kFiles[] = {
    "alpha.txt", "beta.txt",  "gamma.txt", "notes.v2.txt", "todo.txt",
    "archive.tar.gz", ".profile", "README", "sketch.png",
};
const char kDirectory[] = "pictures";

bool MakeFiles(const fs::path &folder)
{
    for (const char *name : kFiles) {
        std::ofstream file(folder / name);
        file << "a sample file of the kvt demo\n";
        if (!file)
            return false;
    }
    std::error_code error;
    return fs::create_directory(folder / kDirectory, error);
}

} // namespace

SampleFolder::SampleFolder()
{
    std::error_code error;
    previous_ = fs::current_path(error).string();
    const fs::path base = fs::temp_directory_path(error);
    std::string pattern = (error ? fs::path("/tmp") : base) / "kvt-demo-lists-XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    if (!mkdtemp(name.data())) {
        std::perror("cannot make the lists scene's sample folder");
        return;
    }
    folder_ = name.data();
    if (previous_.empty() || !MakeFiles(folder_) || chdir(folder_.c_str()) != 0) {
        std::fprintf(stderr, "cannot fill or enter the sample folder %s\n", folder_.c_str());
        return;
    }
    entered_ = true;
}

SampleFolder::~SampleFolder()
{
    if (entered_ && chdir(previous_.c_str()) != 0)
        std::fprintf(stderr, "cannot go back to %s\n", previous_.c_str());
    std::error_code error;
    if (!folder_.empty())
        fs::remove_all(folder_, error);
}

} // namespace kvt_demo
