#pragma once

#include <QCoreApplication>
#include <QStringList>

class QTextStream;

namespace Viewer::GufTool {

/// The command-line program that packs, shows and checks update files. It speaks the language of
/// the catalogues that the application has installed.
class CGufTool
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::GufTool::CGufTool)

public:
    enum EExitCode : int {
        Success = 0,
        FileFaulty = 1, ///< the error output tells the fault in one sentence
        WrongUsage = 2, ///< the error output tells how the program is called
    };

    /// The streams are borrowed.
    CGufTool(QTextStream &output, QTextStream &errorOutput);

    /// Does what @p arguments ask for, the program's name being the first of them. Returns one of
    /// EExitCode.
    int run(const QStringList &arguments);

private:
    int runCommand(const QStringList &arguments, bool asJson);
    void pack(const QString &folder, const QString &file);
    void inspect(const QString &file, bool asJson);
    void verify(const QString &file);
    [[nodiscard]] static QString getUsage();
    int reportWrongUsage(const QString &cause);

    QTextStream &m_output;
    QTextStream &m_errorOutput;
};

} // namespace Viewer::GufTool
