#include "app/storedfile.h"

#include <QFileDevice>

#include <cerrno>
#include <unistd.h>

namespace Mirrix {

bool flushToDisk(QFileDevice &file)
{
    int result = 0;
    do {
        result = fsync(file.handle());
    } while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL || errno == ENOTSUP; // what is no file on a disk cannot wait for one
}

} // namespace Mirrix
