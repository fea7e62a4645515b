#include "app/storedfile.h"

#include <QSaveFile>

namespace Mirrix {

bool replaceFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    // A short write is not an error to QSaveFile, and one that fails when its buffer is flushed none either: on a full
    // disk it would put a cut file into place.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    if (file.write(content) != content.size() || !flushToDisk(file)) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

} // namespace Mirrix
