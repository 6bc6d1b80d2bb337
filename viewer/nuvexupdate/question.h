#pragma once

#include "output.h"

#include <QCoreApplication>
#include <QObject>
#include <QSocketNotifier>

namespace Viewer::NuvexUpdate {

/// Asks a person at the terminal, without keeping the event loop from signals.
class CQuestion : public QObject
{
    Q_OBJECT

public:
    /// True when there is somebody to ask: standard input and standard error are terminals.
    [[nodiscard]] static bool canAsk();

    explicit CQuestion(QObject *parent = nullptr);

    /// Shows @p text on standard error and waits for a line.
    void ask(const QString &text);

signals:
    /// Once. Everything but a yes is a no, the end of the input, too.
    void answered(bool isYes);

private:
    void onReadable();

    QSocketNotifier m_notifier;
    QByteArray m_line;
};

} // namespace Viewer::NuvexUpdate
