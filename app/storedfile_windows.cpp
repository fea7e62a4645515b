#include "app/storedfile.h"

#include <QFileDevice>

#include <io.h>

namespace Mirrix {

bool flushToDisk(QFileDevice &file)
{
    return _commit(file.handle()) == 0;
}

} // namespace Mirrix
