#include "jsonobjectreader.h"

#include "viewer/text/visibletext.h"

#include <cmath>

namespace Viewer::CameraPool::UpdateFile {

using Text::CErrorText;

namespace {

CErrorText describeType(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Bool:
        return CErrorText::tr("true or false");
    case QJsonValue::Double:
        return CErrorText::tr("a number");
    case QJsonValue::String:
        return CErrorText::tr("a text");
    case QJsonValue::Array:
        return CErrorText::tr("a list");
    case QJsonValue::Object:
        return CErrorText::tr("an object");
    default:
        return CErrorText::tr("null");
    }
}

} // namespace

CJsonObjectReader::CJsonObjectReader(const QJsonObject &object, const QString &path)
    : m_object(object)
    , m_path(path)
{
}

CJsonObjectReader CJsonObjectReader::getObject(const QJsonArray &list, const QString &name,
                                               int index) const
{
    const QString itemName = QStringLiteral("%1[%2]").arg(name, QString::number(index));
    const QJsonValue value = list.at(index);
    if (!value.isObject())
        fail(itemName,
             CErrorText::tr("is %1 where %2 is wanted")
                 .arg(describeType(value.type()), describeType(QJsonValue::Object)));
    return CJsonObjectReader(value.toObject(), getPath(itemName));
}

void CJsonObjectReader::checkNames(const QStringList &knownNames) const
{
    const QStringList names = m_object.keys();
    for (const QString &name : names) {
        if (!knownNames.contains(name))
            fail(name,
                 CErrorText::tr("is unknown; known here are %1")
                     .arg(knownNames.join(QStringLiteral(", "))));
    }
}

bool CJsonObjectReader::has(const QString &name) const
{
    return m_object.contains(name);
}

QString CJsonObjectReader::readText(const QString &name, const CTextRule &rule) const
{
    return checkText(name, getValue(name, QJsonValue::String).toString(), rule);
}

QString CJsonObjectReader::readOptionalText(const QString &name, const CTextRule &rule) const
{
    return has(name) ? readText(name, rule) : QString();
}

qint64 CJsonObjectReader::readInteger(const QString &name, qint64 minimum, qint64 maximum) const
{
    const double value = getValue(name, QJsonValue::Double).toDouble();
    if (std::floor(value) != value || value < static_cast<double>(minimum)
        || value > static_cast<double>(maximum))
        fail(name,
             CErrorText::tr("has to be a whole number from %1 to %2")
                 .arg(QString::number(minimum), QString::number(maximum)));
    return static_cast<qint64>(value);
}

QJsonArray CJsonObjectReader::readList(const QString &name, int minimumSize, int maximumSize) const
{
    const QJsonArray list = getValue(name, QJsonValue::Array).toArray();
    if (list.size() < minimumSize)
        fail(name, CErrorText::tr("is an empty list"));
    if (list.size() > maximumSize)
        fail(name,
             CErrorText::tr("has %1 items; at most %2 are allowed")
                 .arg(QString::number(list.size()), QString::number(maximumSize)));
    return list;
}

QStringList CJsonObjectReader::readTexts(const QString &name, int minimumSize, int maximumSize,
                                         const CTextRule &rule) const
{
    const QJsonArray list = readList(name, minimumSize, maximumSize);
    QStringList texts;
    for (int index = 0; index < list.size(); ++index) {
        const QString itemName = QStringLiteral("%1[%2]").arg(name, QString::number(index));
        if (!list.at(index).isString())
            fail(itemName,
                 CErrorText::tr("is %1 where %2 is wanted")
                     .arg(describeType(list.at(index).type()), describeType(QJsonValue::String)));
        const QString text = checkText(itemName, list.at(index).toString(), rule);
        if (texts.contains(text))
            fail(itemName, CErrorText::tr("repeats \"%1\"").arg(Text::shorten(text)));
        texts.append(text);
    }
    return texts;
}

void CJsonObjectReader::fail(const QString &name, const CErrorText &cause) const
{
    throw CFieldFault{
        CErrorText::tr("the field \"%1\" %2").arg(Text::shorten(getPath(name)), cause)};
}

QString CJsonObjectReader::getPath(const QString &name) const
{
    return m_path.isEmpty() ? name : m_path + QLatin1Char('.') + name;
}

QJsonValue CJsonObjectReader::getValue(const QString &name, QJsonValue::Type type) const
{
    if (!has(name))
        fail(name, CErrorText::tr("is missing"));
    const QJsonValue value = m_object.value(name);
    if (value.type() != type)
        fail(name,
             CErrorText::tr("is %1 where %2 is wanted")
                 .arg(describeType(value.type()), describeType(type)));
    return value;
}

QString CJsonObjectReader::checkText(const QString &name, const QString &text,
                                     const CTextRule &rule) const
{
    if (text.isEmpty() && !rule.mayBeEmpty)
        fail(name, CErrorText::tr("is empty"));
    if (text.size() > rule.maximumLength)
        fail(name,
             CErrorText::tr("is longer than %1 characters")
                 .arg(QString::number(rule.maximumLength)));
    if (Text::hasUnprintable(text, rule.hasSeveralLines))
        fail(name,
             rule.hasSeveralLines ? CErrorText::tr("has a control character")
                                  : CErrorText::tr("has a line break or a control character"));
    if (!rule.hasSeveralLines && text != text.trimmed())
        fail(name, CErrorText::tr("begins or ends with white space"));
    return text;
}

} // namespace Viewer::CameraPool::UpdateFile
