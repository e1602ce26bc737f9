#ifndef KVT_SPRITE_TOOL_TEST_TOOL_RUN_H
#define KVT_SPRITE_TOOL_TEST_TOOL_RUN_H

// Running the kvt-sprite program as a user would, in a scratch folder.

#include <string>
#include <vector>

namespace kvt_sprite_test {

struct ToolRun {
    int status;      // the exit status, or -1 when it did not exit normally
    std::string out; // what it printed on stdout
    std::string err; // and on stderr
};

// Runs the built kvt-sprite with `args` and waits for it.
ToolRun RunTool(const std::vector<std::string> &args);

// A fresh folder under the temporary folder, removed with all it holds.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;

    // `name` inside the folder.
    std::string operator/(const std::string &name) const { return path_ + "/" + name; }
    // The names of everything in the folder, at any depth, sorted, with
    // each file's size and contents: equal listings mean nothing changed.
    std::string Listing() const;

private:
    std::string path_;
};

std::string ReadFile(const std::string &path);
void WriteFile(const std::string &path, const std::string &bytes);

} // namespace kvt_sprite_test

#endif
