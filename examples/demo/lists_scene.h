#ifndef KVT_DEMO_LISTS_SCENE_H
#define KVT_DEMO_LISTS_SCENE_H

// The lists scene: one CUIScreen with a string list of 50 entries, a file
// lister and a file chooser, both on a folder of sample files that the
// scene makes and enters for as long as it lives. The scene hands events
// to the screen and reports, one line each on stdout and in a panel,
// every change of the string list's selection, every file picked in the
// lister, and every name the chooser shows. The headless script and the
// live window drive the same object.

#include <memory>
#include <string>
#include <vector>

#include <SDL.h>

#include <kvt/ui/core/screen.h>
#include <kvt/util/list.h>

#include "assets.h"
#include "sample_folder.h"
#include "scene_parts.h"
#include "scenes.h"

class CUIStringList;
class CUIFileLister;
class CUIFileChooser;

namespace kvt_demo {

// The widgets by index in the screen's array, which is also the Tab order.
enum ListsWidget { kStringList, kFileLister, kFileChooser, kListsWidgets };

struct ListsLayout;

class ListsScene : public LiveScene {
public:
    static const int kEntries = 50;
    // The suffix of the files the chooser steps through.
    static constexpr const char *kChooserSuffix = ".txt";

    ListsScene(Assets &assets, Layout layout);
    ~ListsScene() override;

    // Paints the whole scene: background, panels, captions, the widgets
    // through DrawScreen, the reports so far and `status`. Does not update
    // the display.
    void Draw(SDL_Surface *screen, const char *status);
    // Replaces the text under the widgets and updates its area.
    void ShowStatus(SDL_Surface *screen, const char *status);
    // Gives the event to the screen's ProcessDefaultEvent, then reports.
    void HandleEvent(SDL_Event *event, SDL_Surface *screen) override;
    // The chooser steps with Left and Right rather than change scene.
    bool KeepsKey(SDLKey key) const override;

    SDL_Rect WidgetRect(int widget) const;
    const CUIStringList &Strings() const { return *strings_; }
    const CUIFileLister &Files() const { return *files_; }
    const CUIFileChooser &Chooser() const { return *chooser_; }
    // The lister's name at `element`, "" where there is none.
    std::string FileName(int element) const;
    const char *ChooserText() const;

private:
    void Report(SDL_Event *event);
    bool IsRowRelease(const SDL_Event *event) const;

    // First, so that the widgets scan inside it and go before it does.
    SampleFolder folder_;
    const ListsLayout &layout_;
    Assets &assets_;
    std::vector<std::string> entryTexts_;
    List entries_; // points into entryTexts_, element i is "entry i"
    CUIScreen screen_;
    std::unique_ptr<CUIObject> widgets_[kListsWidgets];
    CUIStringList *strings_;
    CUIFileLister *files_;
    CUIFileChooser *chooser_;
    // What was last reported, to tell a change.
    int reportedEntry_;
    int reportedFile_;
    std::string reportedChooser_;
    ReportLog log_;
};

} // namespace kvt_demo

#endif
