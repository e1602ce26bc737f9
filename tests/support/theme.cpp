#include "theme.h"

namespace kvt_test {

CUITheme DistinctTheme()
{
    CUITheme theme;
    theme.activeFirst = KVT_RGB(255, 0, 0, 0);
    theme.activeLast = KVT_RGB(0, 255, 0, 0);
    theme.restFirst = KVT_RGB(0, 0, 255, 0);
    theme.restLast = KVT_RGB(255, 255, 255, 0);
    theme.faceColor = KVT_RGB(255, 255, 0, 0);
    theme.activeMid = theme.restMid = KVT_RGB(0, 0, 0, 0);
    theme.RepackColor(nullptr);
    return theme;
}

} // namespace kvt_test
