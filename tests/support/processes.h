#pragma once

#include <QDirIterator>
#include <QFile>
#include <QVector>

#include <sys/types.h>

namespace TestSupport {

/// What the process @p parent has started, on any of its threads, and not yet waited for.
inline QVector<pid_t> findChildProcesses(qint64 parent)
{
    QVector<pid_t> children;
    QDirIterator threads(QString("/proc/%1/task").arg(parent), {"[0-9]*"}, QDir::Dirs);
    while (threads.hasNext()) {
        QFile file(threads.next() + "/children");
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QList<QByteArray> numbers = file.readAll().simplified().split(' ');
        for (const QByteArray &number : numbers) {
            if (!number.isEmpty())
                children.append(number.toInt());
        }
    }
    return children;
}

} // namespace TestSupport
