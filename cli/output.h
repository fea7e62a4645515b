#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QIODevice>
#include <QString>

#include <memory>

class QFileDevice;

namespace MirrixCli {

/// Writes a text to standard output, or a line to standard error behind the program's name.
void printText(const QString &text);
void printError(const QString &message);

/// A path as the outside world is to see it: its own bytes, but line breaks, which could forge lines, as "?", and
/// control characters, which could steer a terminal, too when `forTerminal`.
[[nodiscard]] QByteArray shownPath(const QString &path, bool forTerminal);

/// Where a report goes: standard output, a device or pipe, or a file that appears whole or not at all.
class Output
{
public:
    Output();
    ~Output();

    /// Opens `path`; standard output when it is empty. False on failure; errorText says why.
    [[nodiscard]] bool open(const QString &path);

    /// Buffered. A failure is kept for finish.
    void write(QByteArrayView bytes);

    /// Writes what is buffered and, for a file, puts it into place. False when anything could not be written: a file
    /// is then as it was before.
    [[nodiscard]] bool finish();

    [[nodiscard]] QString errorText() const;

    /// Whether a person reads along.
    [[nodiscard]] bool isTerminal() const;

private:
    [[nodiscard]] bool openPlain(const QString &path, QIODevice::OpenMode mode);
    [[nodiscard]] bool putIntoPlace();
    void flush();

    std::unique_ptr<QFileDevice> m_device;
    QByteArray m_buffer;
    QString m_path;
    QString m_temporaryPath; ///< where the file is written until it is finished, when QSaveFile cannot name it
    QString m_openFailure;
    bool m_isStandard = false;
    bool m_isReplacing = false; ///< the file appears when it is finished
    bool m_hasFailed = false;
};

} // namespace MirrixCli
