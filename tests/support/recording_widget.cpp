#include "recording_widget.h"

#include <cstdio>

namespace kvt_test {

bool operator==(const Message &a, const Message &b)
{
    return a.widget == b.widget && a.message == b.message && a.param1 == b.param1 &&
           a.param2 == b.param2 && a.surface == b.surface;
}

std::string MessageName(int message)
{
    static const std::map<int, const char *> names = {
        {CUIMSG_MOUSEDOWN, "MOUSEDOWN"},   {CUIMSG_MOUSEUP, "MOUSEUP"},
        {CUIMSG_MOUSEMOVE, "MOUSEMOVE"},   {CUIMSG_KEYDOWN, "KEYDOWN"},
        {CUIMSG_CHAR, "CHAR"},             {CUIMSG_DRAW, "DRAW"},
        {CUIMSG_FOCUSIN, "FOCUSIN"},       {CUIMSG_FOCUSOUT, "FOCUSOUT"},
        {CUIMSG_MOUSEENTER, "MOUSEENTER"}, {CUIMSG_MOUSELEAVE, "MOUSELEAVE"},
        {CUIMSG_REFRESH, "REFRESH"},       {CUIMSG_SETTEXT, "SETTEXT"},
    };
    auto found = names.find(message);
    return found != names.end() ? found->second : "message " + std::to_string(message);
}

std::string Describe(const Message &m)
{
    char params[64];
    snprintf(params, sizeof params, "(%#lx, %ld)", long(m.param1), long(m.param2));
    return std::to_string(m.widget) + ":" + MessageName(m.message) + params;
}

std::string Describe(const std::vector<Message> &log)
{
    std::string out;
    for (const Message &m : log)
        out += (out.empty() ? "" : " ") + Describe(m);
    return out.empty() ? "(no message)" : out;
}

void PrintTo(const Message &m, std::ostream *out) { *out << Describe(m); }

RecordingWidget::RecordingWidget(int id, std::vector<Message> *log, int x, int y, int width,
                                 int height, CUITheme *theme)
    : id_(id), log_(log)
{
    this->x = x;
    this->y = y;
    this->width = width;
    this->height = height;
    this->theme = theme;
}

bool RecordingWidget::SendMessage(int message, intptr_t param1, intptr_t param2,
                                  SDL_Surface *surface)
{
    log_->push_back({id_, message, param1, param2, surface});
    bool answer = DefaultSendMessage(message, param1, param2, surface);
    auto told = answers.find(message);
    return told != answers.end() ? told->second : answer;
}

std::vector<Message> To(const std::vector<Message> &log, int widget)
{
    std::vector<Message> out;
    for (const Message &m : log)
        if (m.widget == widget)
            out.push_back(m);
    return out;
}

std::vector<Message> WithMessage(const std::vector<Message> &log, int message)
{
    std::vector<Message> out;
    for (const Message &m : log)
        if (m.message == message)
            out.push_back(m);
    return out;
}

} // namespace kvt_test
