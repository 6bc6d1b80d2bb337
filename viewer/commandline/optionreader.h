#pragma once

#include "option.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Viewer::CommandLine {

/// Reads a program's arguments by a table of options. Adds --help, and --version where there is
/// one.
class COptionReader
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::CommandLine::COptionReader)

public:
    enum class EResult {
        Start,
        Message, ///< getMessage() answers --help or --version
        Error, ///< getMessage() says what is wrong with the arguments
    };

    /// @p description is for --help. @p version may be empty.
    COptionReader(const QString &program, const QString &version, const QString &description);

    void add(const QVector<COption> &options);

    /// Without this call there may be no arguments but options.
    void allowPositionals();

    /// The same, and --help shows one more of them. @p syntax: how it stands in the line of usage.
    void addPositional(const QString &name, const QString &description, const QString &syntax);

    /// Reads @p arguments, of which the first is the program's name. Needs an application object.
    /// Where several values are no good, the first one in the table is told.
    [[nodiscard]] EResult parse(const QStringList &arguments);

    /// Without a line end.
    [[nodiscard]] QString getMessage() const;

    [[nodiscard]] QStringList getPositionals() const;

private:
    [[nodiscard]] bool take(const COption &option);
    [[nodiscard]] bool takeAll(bool first);

    const QString m_program;
    const QString m_version;
    QCommandLineParser m_parser;
    QVector<COption> m_options;
    bool m_allowsPositionals = false;
    QString m_message;
};

} // namespace Viewer::CommandLine
