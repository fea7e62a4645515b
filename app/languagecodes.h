#pragma once

#include <QString>
#include <QStringList>

namespace Mirrix {

/// One language of the interface.
struct Language
{
    QString code;        ///< as settings keep it
    QString nativeName;  ///< as the language menu shows it
    QString catalogue;   ///< base name of the translation; empty for the source language
    QString locale;      ///< locale name; empty where none is set
    QStringList aliases; ///< further system tags that mean this language, lower case
};

/// All languages, in menu order.
[[nodiscard]] const QList<Language> &languages();

/// The table's code for a code or alias, letter case and "_" or "-" ignored; a tag with more subtags ("de-AT") counts
/// as its language where the table knows it. Empty when it is unknown.
[[nodiscard]] QString knownLanguageCode(const QString &code);

/// knownLanguageCode, with "zh_CN" for what is empty or unknown.
[[nodiscard]] QString normalizedLanguageCode(const QString &code);

/// The first known one of the system's interface languages; "zh_CN" when none is.
[[nodiscard]] QString systemLanguageCode();

} // namespace Mirrix
