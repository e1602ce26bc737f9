#include <kvt/ui/bars/generic_horz_int_bar.h>

#include <kvt/ui/bars/internal/int_bar.h>

CUIGenericHorzIntBar::CUIGenericHorzIntBar(int x, int y, int width, int height, CUITheme *theme,
                                           int minVal, int maxVal, int val)
    : CUIGenericHorzIntBar(x, y, width, height, theme, minVal, maxVal, val, height)
{
}

CUIGenericHorzIntBar::CUIGenericHorzIntBar(int x, int y, int width, int height, CUITheme *theme,
                                           int minVal, int maxVal, int val, int buttonLength)
{
    kvt::SetUpIntBar(*this, kvt::kHorizontalBar, x, y, width, height, theme, minVal, maxVal, val,
                     buttonLength);
}

CUIGenericHorzIntBar::~CUIGenericHorzIntBar()
{
    kvt::TearDownIntBar(*this);
}

void CUIGenericHorzIntBar::ResetInterval(int minVal, int maxVal)
{
    this->minVal = minVal;
    this->maxVal = maxVal;
    SetVal(minVal);
}

void CUIGenericHorzIntBar::SetVal(int val)
{
    kvt::SetValueIfInside(*this, val);
}

void CUIGenericHorzIntBar::Inc()
{
    kvt::StepValueUp(*this, wrap);
}

void CUIGenericHorzIntBar::Dec()
{
    kvt::StepValueDown(*this, wrap);
}

bool CUIGenericHorzIntBar::SendMessage(int message, intptr_t param1, intptr_t param2,
                                        SDL_Surface *surface)
{
    return kvt::SendIntBarMessage(*this, kvt::kHorizontalBar, message, param1, param2, surface);
}
