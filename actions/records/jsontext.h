#pragma once

#include <QByteArray>
#include <QString>

namespace Mirrix {

/// Appends `text` to `out` as a JSON string, quotes included. Lone surrogates, of which names of files that are no
/// Unicode consist, are written as \uXXXX, which QJsonDocument reads back. Takes a fraction of QJsonDocument's time.
void appendJsonText(QByteArray &out, const QString &text);

} // namespace Mirrix
