#ifndef KVT_DEMO_DIALOG_SHOT_H
#define KVT_DEMO_DIALOG_SHOT_H

// Headless pictures of a modal dialog while it is open. A dialog call
// takes every event from SDL's queue and returns only on OK or Cancel, so
// its input is queued in two batches: the first before the call, and the
// second, which ends it, by a helper thread once the dialog has dealt with
// the whole first batch, drawn, and gone idle. Between the two the thread
// copies the surface. SDL_PushEvent is safe from any thread.

#include <vector>

#include <SDL.h>

namespace kvt_demo {

// Events to put on SDL's queue, which holds at most 127 of them.
class QueuedInput {
public:
    void Click(int x, int y);
    // One key press per character, each carrying its character; lower
    // case letters, digits and punctuation that needs no Shift.
    void Type(const char *text);
    const std::vector<SDL_Event> &Events() const { return events_; }

private:
    void Mouse(Uint8 type, int x, int y);
    std::vector<SDL_Event> events_;
};

class DialogShot {
public:
    // `before` is queued at once; `after` waits for the thread.
    DialogShot(SDL_Surface *screen, const QueuedInput &before, const QueuedInput &after);
    // Starts the thread; call the dialog next.
    bool Start();
    // After the dialog returned: the copy of the surface as the dialog
    // showed it (owned by the caller), or null when none was taken.
    SDL_Surface *Finish();

private:
    static int Watch(void *self);
    SDL_Surface *screen_;
    QueuedInput before_, after_;
    SDL_Thread *thread_ = nullptr;
    SDL_Surface *copy_ = nullptr;
};

} // namespace kvt_demo

#endif
