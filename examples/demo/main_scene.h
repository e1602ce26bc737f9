#ifndef KVT_DEMO_MAIN_SCENE_H
#define KVT_DEMO_MAIN_SCENE_H

// The main screen of the live demo: one CUIScreen with a widget of every
// kind the library has, and "Open..." and "Save..." buttons that run the
// modal file dialogs on a folder of sample files. The scene prints what
// each dialog gave (`open: todo.txt`, `save: story.txt`) on stdout and in
// its reports panel. The headless script and the window drive the same
// object.

#include <string>

#include <SDL.h>

#include "assets.h"
#include "sample_folder.h"
#include "scene_parts.h"
#include "scenes.h"
#include "widget_board.h"

namespace kvt_demo {

struct MainLayout;

class MainScene : public LiveScene {
public:
    // What the dialogs list, and what the save dialog adds to a name that
    // lacks it.
    static constexpr const char *kExtension = WidgetBoard::kExtension;
    static const int kDialogRowHeight = 16; // the dialogs' list rows
    static const int kDialogBarWidth = 21;  // the dialogs' list bar, on its left

    MainScene(Assets &assets, Layout layout);
    ~MainScene() override;

    // Paints the whole scene; does not update the display.
    void Draw(SDL_Surface *screen);
    // Gives the event to the screen; a click on Open... or Save... runs
    // that dialog until it ends and reports its result.
    void HandleEvent(SDL_Event *event, SDL_Surface *screen) override;
    // Typing in the field, and the arrows on the bars and the chooser.
    bool KeepsKey(SDLKey key) const override;

    // The modal dialogs, reported; they answer what the library answered.
    bool RunOpenDialog(SDL_Surface *screen);
    bool RunSaveDialog(SDL_Surface *screen);
    // Where the dialogs stand.
    const SDL_Rect &Dialog() const;

private:
    // First, so that the file widgets scan inside it and go before it does.
    SampleFolder folder_;
    const MainLayout &layout_;
    Assets &assets_;
    WidgetBoard board_;
    ReportLog log_;
};

} // namespace kvt_demo

#endif
