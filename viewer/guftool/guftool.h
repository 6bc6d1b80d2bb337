#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <optional>

class QTextStream;

namespace Viewer::Signature {
class CSigner;
}

namespace Viewer::GufTool {

/// The command-line program that packs, signs, shows and checks update files. It speaks the
/// language of the catalogues that the application has installed.
class CGufTool
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::GufTool::CGufTool)

public:
    enum EExitCode : int {
        Success = 0,
        FileFaulty = 1, ///< the error output tells the fault in one sentence
        WrongUsage = 2, ///< the error output tells how the program is called
        NotTrusted = 3, ///< the signature is missing or not trusted; the error output tells why
    };

    /// The streams are borrowed.
    CGufTool(QTextStream &output, QTextStream &errorOutput);

    /// Does what @p arguments ask for, the program's name being the first of them. Returns one of
    /// EExitCode.
    int run(const QStringList &arguments);

private:
    struct COptions
    {
        bool isJson = false;
        bool isSigned = false;
        QString query;
        QString response;
        QString certificate;
        QString key;
        QString chain;
        QString passphraseFile;
        QString trustFolder;
        QStringList given; ///< names of all that are there
    };

    int runCommand(const QStringList &arguments, const COptions &options);
    int pack(const QString &folder, const QString &file, const COptions &options);
    int sign(const QString &file, const COptions &options);
    int stamp(const QString &file, const COptions &options);
    int inspect(const QString &file, const COptions &options);
    int verify(const QString &file, const COptions &options);
    /// Nothing, when the fault is told.
    [[nodiscard]] std::optional<Signature::CSigner> readSigner(const COptions &options);
    void tellFaultsOf(const QStringList &trustFolders);
    [[nodiscard]] static QString getUsage();
    int reportWrongUsage(const QString &cause);

    QTextStream &m_output;
    QTextStream &m_errorOutput;
};

} // namespace Viewer::GufTool
