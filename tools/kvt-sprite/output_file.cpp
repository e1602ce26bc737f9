#include "output_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace kvt_sprite {

namespace {

bool WriteAll(int fd, const std::vector<Uint8> &bytes)
{
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += size_t(n);
    }
    return true;
}

// mkstemp makes the file private; the finished file gets the permissions
// that any newly created file of the user would have.
void GiveUsualPermissions(int fd)
{
    const mode_t mask = umask(0);
    umask(mask);
    fchmod(fd, 0666 & ~mask);
}

} // namespace

bool WriteWholeFile(const std::string &path, const std::vector<Uint8> &bytes,
                    std::string *error)
{
    std::string temporary = path + ".XXXXXX";
    const int fd = mkstemp(&temporary[0]);
    if (fd < 0) {
        *error = "cannot write " + path + ": " + std::strerror(errno);
        return false;
    }
    GiveUsualPermissions(fd);
    const bool written = WriteAll(fd, bytes);
    const int writeErrno = errno;
    const bool closed = close(fd) == 0;
    if (written && closed && std::rename(temporary.c_str(), path.c_str()) == 0)
        return true;
    const int reason = !written ? writeErrno : errno;
    unlink(temporary.c_str());
    *error = "cannot write " + path + ": " + std::strerror(reason);
    return false;
}

} // namespace kvt_sprite
