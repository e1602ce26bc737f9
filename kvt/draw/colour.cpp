#include <kvt/draw/colour.h>

namespace kvt {

namespace {

// Gives a narrow channel the known widening that turns its telling field
// into what SDL answered for it; false when neither rule does.
bool LearnWidening(ChannelForm *channel, Uint8 answer)
{
    if (!WideningDiffers(channel->loss))
        return true;
    if (channel->loss >= 8)
        return answer == 0; // an empty channel: only "always 0" is inline
    const Uint32 field = kTellingField[channel->loss];
    const Widening rules[2] = {kReplicatedWidening[channel->loss], kScaledWidening[channel->loss]};
    for (const Widening &rule : rules) {
        channel->widening = rule;
        if (channel->Widen(field) == answer)
            return true;
    }
    return false;
}

} // namespace

ColourForm ColourForm::Learned(const SDL_PixelFormat *format)
{
    ColourForm form(format);
    if (form.splitInline_ || !form.mapInline_ || !form.HasSeparateWholeFields())
        return form;
    ChannelForm *const channels[3] = {&form.red_, &form.green_, &form.blue_};
    Uint32 probe = 0;
    for (const ChannelForm *c : channels)
        probe |= Uint32(kTellingField[c->loss]) << c->shift;
    Uint8 answer[3];
    SDL_GetRGB(probe, format, &answer[0], &answer[1], &answer[2]);
    bool known = true;
    for (int i = 0; i < 3; ++i)
        known = LearnWidening(channels[i], answer[i]) && known;
    form.splitInline_ = known;
    return form;
}

} // namespace kvt
