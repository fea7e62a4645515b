#pragma once

#include <QList>
#include <QString>

namespace MirrixCli {

/// A command line for the manual, as a shell takes it.
struct Example
{
    QString purpose;
    QString line;
};

/// Those of a command. A test runs each of them.
[[nodiscard]] QList<Example> examplesOf(const QString &command);

} // namespace MirrixCli
