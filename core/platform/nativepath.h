#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <filesystem>

namespace MirrixCore {

// Paths inside the program are QStrings with forward slashes. Not every file name is proper Unicode: POSIX names are
// bytes, Windows names are 16-bit units. So that each file keeps a name of its own, a POSIX byte 0x80..0xFF that is not
// part of valid UTF-8 becomes the lone surrogate U+DC80..U+DCFF (the scheme of Python's PEP 383), and lone surrogates
// of Windows names are kept. The pair of functions below is the only way between such texts and bytes; never use
// toUtf8() or QFile::encodeName() on a path, both map different odd names to one. Thread-safe.

/// The path as bytes, a different text for each different path: on POSIX the bytes that the system's calls take, on
/// Windows UTF-8 in which a lone surrogate is written as three bytes.
[[nodiscard]] QByteArray pathBytes(const QString &path);

/// The path that `bytes` encode; pathBytes gives them back unchanged.
[[nodiscard]] QString pathFromBytes(QByteArrayView bytes);

/// The path for libraries that open files themselves, in the units and the form of the system's calls. Its c_str() is
/// what they take: bytes on POSIX, 16-bit units on Windows.
[[nodiscard]] std::filesystem::path filesystemPath(const QString &path);

/// Makes the folder and those above it as needed. False when it is not there afterwards.
[[nodiscard]] bool makeFolders(const QString &path);

/// `path` made absolute against the current folder, forward slashes. On Windows ".." is resolved, as the system does
/// it, by the text; on POSIX it stays, since behind a link it leads elsewhere.
[[nodiscard]] QString absolutePath(const QString &path);

/// What the absolute `path` leads to, by a path without links, "." and ".."; empty when nothing is there or the system
/// would not say.
[[nodiscard]] QString canonicalPath(const QString &path);

/// A text that is equal for all spellings of one path that this system's rules on letter case treat as the same.
[[nodiscard]] QString pathCaseKey(const QString &path);

/// The program's command line without loss, the program's name first.
[[nodiscard]] QStringList commandLineArguments(int argc, char **argv);

/// The system's text for its error number `code` (errno, or GetLastError), without a full stop or line end.
[[nodiscard]] QString systemErrorText(int code);

} // namespace MirrixCore
