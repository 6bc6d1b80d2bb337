#pragma once

#include "output.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

namespace Viewer::NuvexUpdate {

/// The log of one series of updates, beside those of the viewer. The newest ones are kept.
class CUpdateLog
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::NuvexUpdate::CUpdateLog)

public:
    using FaultListener = COutput::FaultListener;

    /// Makes the file. @p listener gets a sentence in the user's language when the log cannot be
    /// made, or not be written any more; the updates go on without it.
    explicit CUpdateLog(const FaultListener &listener);
    ~CUpdateLog();
    Q_DISABLE_COPY(CUpdateLog)

    /// Absolute; empty: there is none.
    [[nodiscard]] QString getPath() const;

    /// Null: there is none.
    [[nodiscard]] COutput *getOutput() const;

private:
    QString m_path;
    int m_file = -1;
    std::unique_ptr<COutput> m_output;
};

} // namespace Viewer::NuvexUpdate
