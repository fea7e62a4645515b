#pragma once

#include "actions/files/nativefile.h"

#include <QHash>

namespace Mirrix {

/// Caches the properties of the volumes of one run: asking the system for each file costs as much as another check of
/// the file. One thread at a time.
class VolumeTraits
{
public:
    /// As the function of that name, for the file `path` of that identity.
    [[nodiscard]] bool mayReassignFileIds(const QString &path, const MirrixCore::FileIdentity &identity)
    {
        if (!identity.isKnown)
            return Mirrix::mayReassignFileIds(path);
        const auto known = m_mayNumberAnew.constFind(identity.volume);
        return known != m_mayNumberAnew.cend()
                   ? *known
                   : *m_mayNumberAnew.insert(identity.volume, Mirrix::mayReassignFileIds(path));
    }

private:
    QHash<quint32, bool> m_mayNumberAnew;
};

} // namespace Mirrix
