#pragma once

#include "updaterequest.h"

#include "viewer/commandline/optionreader.h"

#include <QCoreApplication>
#include <QSet>

namespace Viewer::NuvexUpdate {

/// Reads the command line of nuvexupdate.
class CUpdateCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::NuvexUpdate::CUpdateCommandLine)

public:
    using EResult = CommandLine::COptionReader::EResult;

    /// Reads @p arguments, of which the first is the program's name. Needs an application object.
    /// Whatever comes of it, the language is what was asked for, to be used for the message. Once
    /// only.
    EResult parse(const QStringList &arguments);

    [[nodiscard]] QString getLanguage() const;

    /// Once only.
    [[nodiscard]] CUpdateRequest takeRequest();

    /// Without a line end.
    [[nodiscard]] QString getMessage() const;

private:
    [[nodiscard]] QVector<CommandLine::COption> getOptions();
    [[nodiscard]] QVector<CommandLine::COption> getUpdateOptions();
    [[nodiscard]] bool takePositionals(const QStringList &positionals);
    [[nodiscard]] bool checkOptions();
    [[nodiscard]] bool checkSelection();
    [[nodiscard]] bool fail(const QString &message);

    CUpdateRequest m_request;
    QString m_commandName;
    QSet<QString> m_given; ///< names of options that not all commands have
    QString m_message;
};

} // namespace Viewer::NuvexUpdate
