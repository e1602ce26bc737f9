#include "args.h"

#include <cerrno>
#include <cstdlib>
#include <vector>

namespace kvt_sprite {

namespace {

std::vector<std::string> SplitAtCommas(const std::string &text)
{
    std::vector<std::string> parts(1);
    for (char c : text) {
        if (c == ',')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

} // namespace

bool ParseInteger(const std::string &text, long min, long max, long *value)
{
    // strtol would skip leading blanks and accept a '+'; a number here is
    // digits with an optional minus and nothing else.
    const size_t digits = !text.empty() && text[0] == '-' ? 1 : 0;
    if (text.size() == digits || text.find_first_not_of("0123456789", digits) != std::string::npos)
        return false;
    errno = 0;
    const long parsed = std::strtol(text.c_str(), nullptr, 10);
    if (errno != 0 || parsed < min || parsed > max)
        return false;
    *value = parsed;
    return true;
}

bool ParseImageArgument(const std::string &text, ImageArgument *image, std::string *error)
{
    const size_t at = text.rfind('@');
    image->path = text.substr(0, at);
    if (image->path.empty()) {
        *error = "'" + text + "' names no image";
        return false;
    }
    if (at == std::string::npos)
        return true;
    const std::vector<std::string> parts = SplitAtCommas(text.substr(at + 1));
    long hotX, hotY, tag = 0;
    const bool good = (parts.size() == 2 || parts.size() == 3) &&
                      ParseInteger(parts[0], -32768, 32767, &hotX) &&
                      ParseInteger(parts[1], -32768, 32767, &hotY) &&
                      (parts.size() == 2 || ParseInteger(parts[2], 0, 65535, &tag));
    if (!good) {
        *error = "'" + text + "': the anchor must be @HOTX,HOTY or @HOTX,HOTY,TAG, with HOTX and "
                 "HOTY from -32768 to 32767 and TAG from 0 to 65535";
        return false;
    }
    image->hotX = Sint16(hotX);
    image->hotY = Sint16(hotY);
    image->tag = Uint16(tag);
    return true;
}

} // namespace kvt_sprite
