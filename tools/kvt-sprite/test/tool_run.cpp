#include "tool_run.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kvt_sprite_test {

namespace {

// The child: stdout and stderr into the two files, then the tool.
[[noreturn]] void Exec(const std::vector<std::string> &args, const std::string &out,
                       const std::string &err)
{
    const int outFd = open(out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const int errFd = open(err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (outFd < 0 || errFd < 0 || dup2(outFd, 1) < 0 || dup2(errFd, 2) < 0)
        _exit(127);
    std::vector<char *> argv = {const_cast<char *>(KVT_SPRITE_TOOL)};
    for (const std::string &arg : args)
        argv.push_back(const_cast<char *>(arg.c_str()));
    argv.push_back(nullptr);
    execv(argv[0], argv.data());
    _exit(127);
}

} // namespace

ToolRun RunTool(const std::vector<std::string> &args)
{
    ScratchFolder streams;
    const std::string out = streams / "out", err = streams / "err";
    const pid_t child = fork();
    if (child == 0)
        Exec(args, out, err);
    int status = 0;
    const bool waited = child > 0 && waitpid(child, &status, 0) == child;
    const int code = waited && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return {code, ReadFile(out), ReadFile(err)};
}

ScratchFolder::ScratchFolder()
{
    const char *tmp = std::getenv("TMPDIR");
    std::string pattern = std::string(tmp != nullptr ? tmp : "/tmp") + "/kvt_sprite_XXXXXX";
    path_ = mkdtemp(&pattern[0]) != nullptr ? pattern : "";
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    if (!path_.empty())
        std::filesystem::remove_all(path_, ignored);
}

std::string ScratchFolder::Listing() const
{
    std::set<std::string> entries;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(path_)) {
        const std::string name = entry.path().string().substr(path_.size());
        entries.insert(entry.is_regular_file() ? name + " = " + ReadFile(entry.path())
                                               : name + "/");
    }
    std::string listing;
    for (const std::string &entry : entries)
        listing += entry + "\n";
    return listing;
}

std::string ReadFile(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteFile(const std::string &path, const std::string &bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

} // namespace kvt_sprite_test
