#include "optionreader.h"

namespace Viewer::CommandLine {

COptionReader::COptionReader(const QString &program, const QString &version,
                             const QString &description)
    : m_program(program)
    , m_version(version)
{
    m_parser.setApplicationDescription(description);
    // Qt has these two options as well, but not in every language.
    m_parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, tr("Show this help and quit.")});
    if (!m_version.isEmpty())
        m_parser.addOption(
            {{QStringLiteral("v"), QStringLiteral("version")}, tr("Show the version and quit.")});
}

void COptionReader::add(const QVector<COption> &options)
{
    m_options += options;
    for (const COption &option : options)
        m_parser.addOption({option.name, option.description, option.valueName});
}

void COptionReader::allowPositionals()
{
    m_allowsPositionals = true;
}

void COptionReader::addPositional(const QString &name, const QString &description,
                                  const QString &syntax)
{
    m_allowsPositionals = true;
    m_parser.addPositionalArgument(name, description, syntax);
}

COptionReader::EResult COptionReader::parse(const QStringList &arguments)
{
    const bool isUnderstood = m_parser.parse(arguments);
    const bool isFirstGood = takeAll(true);
    if (!isUnderstood)
        m_message = m_parser.errorText();
    if (!isUnderstood || !isFirstGood)
        return EResult::Error;
    if (m_parser.isSet(QStringLiteral("help"))) {
        m_message = m_parser.helpText().trimmed();
        return EResult::Message;
    }
    if (!m_version.isEmpty() && m_parser.isSet(QStringLiteral("version"))) {
        m_message = m_program + QLatin1Char(' ') + m_version;
        return EResult::Message;
    }
    const QStringList positionals = getPositionals();
    if (!m_allowsPositionals && !positionals.isEmpty()) {
        m_message = tr("Unexpected argument \"%1\".").arg(positionals.constFirst());
        return EResult::Error;
    }
    return takeAll(false) ? EResult::Start : EResult::Error;
}

QString COptionReader::getMessage() const
{
    return m_message;
}

QStringList COptionReader::getPositionals() const
{
    return m_parser.positionalArguments();
}

bool COptionReader::takeAll(bool first)
{
    for (const COption &option : qAsConst(m_options)) {
        if (option.comesFirst == first && m_parser.isSet(option.name) && !take(option))
            return false;
    }
    return true;
}

bool COptionReader::take(const COption &option)
{
    const QStringList values
        = option.valueName.isEmpty() ? QStringList(QString()) : m_parser.values(option.name);
    for (const QString &value : values) {
        if (option.take(value))
            continue;
        if (option.fault.isEmpty())
            m_message = tr("\"%1\" is no good value for --%2.").arg(value, option.name);
        else
            m_message = option.fault.contains(QLatin1String("%1")) ? option.fault.arg(value)
                                                                   : option.fault;
        return false;
    }
    return true;
}

} // namespace Viewer::CommandLine
