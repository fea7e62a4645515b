#include "app/identity.h"

#include <QCoreApplication>

namespace Mirrix {

void setApplicationIdentity()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Mirrix"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("mirrix.app"));
    QCoreApplication::setApplicationName(QStringLiteral("Mirrix"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0.0"));
}

} // namespace Mirrix
