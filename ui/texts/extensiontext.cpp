#include "ui/texts/extensiontext.h"

#include <QRegularExpression>

namespace Mirrix {

QStringList extensionsFromText(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty() || trimmed == u"*.*" || trimmed == u"*")
        return {};
    static const QRegularExpression separators(QStringLiteral("[,;\\s]+"));
    QStringList extensions;
    for (const QString &piece : trimmed.split(separators, Qt::SkipEmptyParts)) {
        QString extension = piece.trimmed().toLower();
        if (extension.startsWith(u'.'))
            extension.remove(0, 1);
        if (!extension.isEmpty() && !extensions.contains(extension))
            extensions.append(extension);
    }
    return extensions;
}

} // namespace Mirrix
