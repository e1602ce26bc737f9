#ifndef KVT_TESTS_SUPPORT_TEMP_DIR_H
#define KVT_TESTS_SUPPORT_TEMP_DIR_H

// A fresh folder in the temporary folder that becomes the current
// directory for the life of the object, for code that reads "./". The
// previous current directory comes back and the folder is removed with
// everything in it when the object ends.

#include <string>

namespace kvt_test {

class TempCurrentDir {
public:
    TempCurrentDir();
    ~TempCurrentDir();
    TempCurrentDir(const TempCurrentDir &) = delete;
    TempCurrentDir &operator=(const TempCurrentDir &) = delete;

    // False when the folder could not be made or entered.
    bool ok() const { return ok_; }
    // An empty file, or a folder, named `name` in the current directory.
    bool MakeFile(const char *name) const;
    bool MakeDir(const char *name) const;
    // Removes the folder while staying in it: the current directory then
    // exists no more and cannot be listed.
    bool RemoveWhileInside();

private:
    std::string path_, previous_;
    bool ok_ = false;
};

} // namespace kvt_test

#endif
