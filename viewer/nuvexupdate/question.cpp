#include "question.h"

#include <cerrno>
#include <unistd.h>

namespace Viewer::NuvexUpdate {

bool CQuestion::canAsk()
{
    return isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0;
}

CQuestion::CQuestion(QObject *parent)
    : QObject(parent)
    , m_notifier(STDIN_FILENO, QSocketNotifier::Read)
{
    m_notifier.setEnabled(false);
    connect(&m_notifier, &QSocketNotifier::activated, this, &CQuestion::onReadable);
}

void CQuestion::ask(const QString &text)
{
    COutput(STDERR_FILENO).write(text.toUtf8() + ' ');
    m_notifier.setEnabled(true);
}

void CQuestion::onReadable()
{
    char bytes[256];
    const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count > 0)
        m_line.append(bytes, static_cast<int>(count));
    if (count > 0 && !m_line.contains('\n'))
        return;
    m_notifier.setEnabled(false);
    const QString answer = QString::fromUtf8(m_line).trimmed().toLower();
    const QString yes = tr("yes");
    emit answered(!answer.isEmpty() && (yes.startsWith(answer) || answer == QLatin1String("y")));
}

} // namespace Viewer::NuvexUpdate
