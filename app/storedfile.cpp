#include "app/storedfile.h"

#include <QSaveFile>

namespace Mirrix {

bool replaceFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // A short write is not an error to QSaveFile: on a full disk it would put the cut file into place.
    if (file.write(content) != content.size()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

} // namespace Mirrix
