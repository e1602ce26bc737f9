#include <kvt/ui/bars/generic_vert_int_bar.h>

#include <kvt/ui/bars/internal/int_bar.h>

CUIGenericVertIntBar::CUIGenericVertIntBar(int x, int y, int width, int height, CUITheme *theme,
                                           int minVal, int maxVal, int val)
    : CUIGenericVertIntBar(x, y, width, height, theme, minVal, maxVal, val, width)
{
}

CUIGenericVertIntBar::CUIGenericVertIntBar(int x, int y, int width, int height, CUITheme *theme,
                                           int minVal, int maxVal, int val, int buttonLength)
{
    kvt::SetUpIntBar(*this, kvt::kVerticalBar, x, y, width, height, theme, minVal, maxVal, val,
                     buttonLength);
}

CUIGenericVertIntBar::~CUIGenericVertIntBar()
{
    kvt::TearDownIntBar(*this);
}

void CUIGenericVertIntBar::ResetInterval(int minVal, int maxVal)
{
    this->minVal = minVal;
    this->maxVal = maxVal;
    SetVal(minVal);
}

void CUIGenericVertIntBar::SetVal(int val)
{
    kvt::SetValueIfInside(*this, val);
}

void CUIGenericVertIntBar::Inc()
{
    kvt::StepValueUp(*this, wrap);
}

void CUIGenericVertIntBar::Dec()
{
    kvt::StepValueDown(*this, wrap);
}

bool CUIGenericVertIntBar::SendMessage(int message, intptr_t param1, intptr_t param2,
                                        SDL_Surface *surface)
{
    return kvt::SendIntBarMessage(*this, kvt::kVerticalBar, message, param1, param2, surface);
}
