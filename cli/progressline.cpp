#include "cli/progressline.h"

#include "cli/output.h"
#include "cli/terminal.h"

#include <cstdio>

namespace MirrixCli {

namespace {
constexpr qint64 redrawMs = 100;
const char clearLine[] = "\r\x1b[K";
} // namespace

ProgressLine::ProgressLine(bool isShown)
    : m_isActive(isShown && isErrorTerminal())
{}

ProgressLine::~ProgressLine()
{
    clear();
}

void ProgressLine::show(const MirrixCore::ScanProgress &progress)
{
    const bool isSamePhase = progress.phase == m_phase;
    if (!m_isActive || (isSamePhase && m_sinceDrawn.isValid() && !m_sinceDrawn.hasExpired(redrawMs)))
        return;
    m_phase = progress.phase;
    m_sinceDrawn.start();
    m_isShown = true;
    const QByteArray text = clearLine + shownPath(progressText(progress, terminalColumns() - 1), true);
    std::fwrite(text.constData(), 1, static_cast<size_t>(text.size()), errorStream());
    std::fflush(errorStream());
}

void ProgressLine::clear()
{
    if (m_isShown)
        std::fputs(clearLine, errorStream());
    m_isShown = false;
}

QString progressText(const MirrixCore::ScanProgress &progress, int columns)
{
    QString text = progress.total > 0 ? QStringLiteral("%1 %2/%3 (%4%)")
                                            .arg(progress.phase)
                                            .arg(progress.processed)
                                            .arg(progress.total)
                                            .arg(progress.processed * 100 / progress.total)
                                      : QStringLiteral("%1 %2").arg(progress.phase).arg(progress.filesFound);
    const qsizetype room = columns - text.size() - 2;
    if (room >= 10) {
        const QString &path = progress.currentPath;
        text += QLatin1String("  ");
        text += path.size() <= room ? path : QChar(0x2026) + path.right(room - 1);
    }
    return text.left(columns);
}

} // namespace MirrixCli
