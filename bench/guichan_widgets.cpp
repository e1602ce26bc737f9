#include "guichan_widgets.h"

namespace kvt_bench {

GuichanWidgets::GuichanWidgets(const Layout &layout, SDL_Surface *display)
    : display_(display), track_(layout.TrackLength()), onOff_(kOnOffCaption, false),
      field_(""), bar_(0, layout.TrackLength()), list_(&rows_), listArea_(&list_)
{
    for (int i = 0; i < Layout::kButtons; ++i) {
        buttons_[i].reset(new gcn::Button(kButtonCaptions[i]));
        buttons_[i]->addActionListener(this);
    }
    list_.addSelectionListener(this);
    bar_.setValue(layout.FirstValue());
    Place(layout);
    graphics_.setTarget(display);
    gui_.setGraphics(&graphics_);
    gui_.setInput(&input_);
    gui_.setTop(&top_);
    FullDraw();
}

void GuichanWidgets::Place(const Layout &l)
{
    top_.setDimension(gcn::Rectangle(0, 0, l.width, l.height));
    const auto put = [this](gcn::Widget &widget, const Box &b) {
        widget.setDimension(gcn::Rectangle(b.x, b.y, b.w, b.h));
        top_.add(&widget);
    };
    for (int i = 0; i < Layout::kButtons; ++i)
        put(*buttons_[i], l.buttons[i]);
    put(onOff_, l.onOff);
    put(field_, l.field);
    put(bar_, l.bar);
    put(listArea_, l.list);
    // The list fills the area beside the vertical scroll bar, and is as
    // tall as its rows (its logic() sets that).
    list_.setWidth(listArea_.getChildrenArea().width);
}

void GuichanWidgets::FullDraw()
{
    gui_.logic();
    gui_.draw();
    SDL_UpdateRect(display_, 0, 0, 0, 0);
}

// How a Guichan program shows the effect of an event: the input goes in,
// logic() delivers it, and the whole screen is drawn and updated.
void GuichanWidgets::Handle(const SDL_Event &event)
{
    input_.pushInput(event);
    FullDraw();
}

void GuichanWidgets::action(const gcn::ActionEvent &event)
{
    for (int i = 0; i < Layout::kButtons; ++i)
        clicks_[i] += event.getSource() == buttons_[i].get();
}

void GuichanWidgets::valueChanged(const gcn::SelectionEvent &) { ++listChanges_; }

Outcome GuichanWidgets::Seen() const
{
    Outcome seen;
    for (int i = 0; i < Layout::kButtons; ++i)
        seen.clicks[i] = clicks_[i];
    seen.on = onOff_.isSelected();
    seen.text = field_.getText();
    seen.barFraction = bar_.getValue() / track_;
    seen.listChanges = listChanges_;
    return seen;
}

} // namespace kvt_bench
