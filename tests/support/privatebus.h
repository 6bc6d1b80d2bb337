#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace TestSupport {

/// A message bus of the test's own, and mocks of services on it; all of them end with this object.
class CPrivateBus
{
public:
    /// What is not installed, as a sentence for QSKIP; empty: nothing is missing.
    static QString findMissing();

    /// Starts the bus. Without one the test program ends.
    CPrivateBus();
    ~CPrivateBus();

    [[nodiscard]] QByteArray getAddress() const;

    /// Starts dbusmock with @p arguments and waits until @p service is on the bus. What the mock
    /// tells, a line for each call, is appended to getLogPath().
    void addMock(const QString &service, const QStringList &arguments);

    [[nodiscard]] QString getLogPath() const;

    /// The arguments of the calls of @p method that stand in the log.
    [[nodiscard]] QStringList getCalls(const QString &method) const;

private:
    [[nodiscard]] bool hasService(const QString &service) const;

    const QTemporaryDir m_folder;
    QProcess m_daemon;
    std::vector<std::unique_ptr<QProcess>> m_mocks;
};

} // namespace TestSupport
