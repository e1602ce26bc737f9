#include "kvt_widgets.h"

namespace kvt_bench {

namespace {

const int kRowHeight = 18; // the font's line
const int kListBar = 20;   // the list's scroll bar, at its left

} // namespace

KvtLook::KvtLook(SDL_Surface *display) : tile(MakeSolid(display, 8, 8, 40, 48, 64))
{
    theme.background = tile.get();
    ok_ = tile != nullptr && theme.Load(KVT_BENCH_THEME, display) &&
          font.Load(FontFile().c_str(), display->format);
}

KvtWidgets::KvtWidgets(const Layout &layout, KvtLook &look, SDL_Surface *display)
    : display_(display), look_(look), track_(layout.TrackLength()), screen_(kWidgets)
{
    for (int i = 0; i < Layout::kRows; ++i)
        rowTexts_.push_back(RowText(i));
    // The list shows its elements last added first.
    for (auto text = rowTexts_.rbegin(); text != rowTexts_.rend(); ++text)
        rows_.AddElement(&(*text)[0]);
    Make(layout);
    for (int i = 0; i < kWidgets; ++i)
        screen_.widgets[i] = widgets_[i].get();
    FullDraw();
}

void KvtWidgets::Make(const Layout &l)
{
    CUITheme *theme = &look_.theme;
    KVT_Sprite *font = &look_.font;
    for (int i = 0; i < Layout::kButtons; ++i) {
        const Box &b = l.buttons[i];
        widgets_[i].reset(new CUINormalButton(b.x, b.y, b.w, b.h, theme, font,
                                              kButtonCaptions[i], true));
    }
    const Box &o = l.onOff, &f = l.field, &b = l.bar, &s = l.list;
    widgets_[kOnOff].reset(new CUIBoolChooser(o.x, o.y, o.w, o.h, theme, font, kOnOffCaption,
                                              false));
    widgets_[kField].reset(new CUITextEdit(f.x, f.y, f.w, f.h, theme, font, "", false));
    widgets_[kBar].reset(
        new CUIHorzValueBar(b.x, b.y, b.w, b.h, theme, 0, l.TrackLength(), l.FirstValue()));
    auto *list = new CUIStringList(s.x, s.y, s.w, s.h, theme, Layout::kRows, kRowHeight,
                                   kListBar * l.width / 320);
    list->SetFont(font);
    list->SetStringList(&rows_);
    widgets_[kList].reset(list);
}

void KvtWidgets::FullDraw()
{
    SDL_Rect whole = {0, 0, Uint16(display_->w), Uint16(display_->h)};
    look_.theme.DrawBackground(display_, &whole);
    screen_.DrawScreen(display_);
    SDL_UpdateRect(display_, 0, 0, 0, 0);
}

// The screen draws what changed and updates the display itself.
void KvtWidgets::Handle(const SDL_Event &event)
{
    SDL_Event copy = event;
    screen_.ProcessDefaultEvent(&copy, display_);
    const int clicked = screen_.GetClicked();
    if (clicked >= 0 && clicked < Layout::kButtons)
        ++clicks_[clicked];
    const int selected = ListWidget().GetSelectedElement();
    listChanges_ += selected != selected_;
    selected_ = selected;
}

Outcome KvtWidgets::Seen() const
{
    Outcome seen;
    for (int i = 0; i < Layout::kButtons; ++i)
        seen.clicks[i] = clicks_[i];
    seen.on = static_cast<const CUIBoolChooser &>(*widgets_[kOnOff]).GetValue();
    seen.text = static_cast<const CUITextEdit &>(*widgets_[kField]).text;
    seen.barFraction =
        double(static_cast<const CUIHorzValueBar &>(*widgets_[kBar]).GetVal()) / track_;
    seen.listChanges = listChanges_;
    return seen;
}

} // namespace kvt_bench
