#ifndef KVT_TESTS_SUPPORT_RECORDING_WIDGET_H
#define KVT_TESTS_SUPPORT_RECORDING_WIDGET_H

// A widget that writes down every message it receives, so that tests can
// check which messages a screen or a composite widget sends, to whom, with
// what, and in what order. It answers what the test tells it to, and
// otherwise what DefaultSendMessage answers (which also saves and paints
// the focus ring as every widget does).

#include <cstdint>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include <SDL.h>

#include <kvt/ui/core/object.h>

namespace kvt_test {

struct Message {
    int widget; // the id given to the recording widget
    int message;
    intptr_t param1, param2;
    SDL_Surface *surface = nullptr; // tables of expected messages may leave it out
};
bool operator==(const Message &a, const Message &b);
// "2:FOCUSIN(0x00050004, 1)": widget, message name, both parameters.
std::string Describe(const Message &m);
std::string Describe(const std::vector<Message> &log);
void PrintTo(const Message &m, std::ostream *out);

// "CUIMSG_MOUSEDOWN" -> "MOUSEDOWN"; a number for unknown messages.
std::string MessageName(int message);

class RecordingWidget : public CUIObject {
public:
    // Several widgets may share one log, which then shows the order across
    // them. `theme` must have colours: DefaultSendMessage paints with it.
    RecordingWidget(int id, std::vector<Message> *log, int x, int y, int width, int height,
                    CUITheme *theme);

    bool SendMessage(int message, intptr_t param1, intptr_t param2,
                     SDL_Surface *surface) override;

    // message -> the answer to give; messages not listed get
    // DefaultSendMessage's answer. DefaultSendMessage runs either way.
    std::map<int, bool> answers;

private:
    int id_;
    std::vector<Message> *log_;
};

// The messages of `log` sent to one widget, or with one message number.
std::vector<Message> To(const std::vector<Message> &log, int widget);
std::vector<Message> WithMessage(const std::vector<Message> &log, int message);

} // namespace kvt_test

#endif
