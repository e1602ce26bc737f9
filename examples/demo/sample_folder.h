#ifndef KVT_DEMO_SAMPLE_FOLDER_H
#define KVT_DEMO_SAMPLE_FOLDER_H

// The files that the lists scene and the main scene's dialogs browse.
// The file widgets read only the current directory, so each such scene
// makes a fresh temporary folder of sample files, works inside it while
// it lives, and on its end goes back to where it was and removes the
// folder.

#include <string>

namespace kvt_demo {

class SampleFolder {
public:
    // Makes the folder and its files and enters it. On failure prints why
    // on stderr and stays where it was: the widgets then find nothing.
    SampleFolder();
    ~SampleFolder();
    SampleFolder(const SampleFolder &) = delete;
    SampleFolder &operator=(const SampleFolder &) = delete;


private:
    std::string folder_;   // empty when none was made
    std::string previous_; // the current directory before
    bool entered_ = false;
};

} // namespace kvt_demo

#endif
