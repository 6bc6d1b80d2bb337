#include "jsonobjectreader.h"

#include "viewer/json/messagetext.h"

#include <cmath>

namespace Viewer::CameraPool::UpdateFile {

namespace {

QString describeType(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Bool:
        return QStringLiteral("true or false");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a text");
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    default:
        return QStringLiteral("null");
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
             QStringLiteral("is %1 where an object is wanted").arg(describeType(value.type())));
    return CJsonObjectReader(value.toObject(), getPath(itemName));
}

void CJsonObjectReader::checkNames(const QStringList &knownNames) const
{
    const QStringList names = m_object.keys();
    for (const QString &name : names) {
        if (!knownNames.contains(name))
            fail(name,
                 QStringLiteral("is unknown; known here are %1")
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
             QStringLiteral("has to be a whole number from %1 to %2").arg(minimum).arg(maximum));
    return static_cast<qint64>(value);
}

QJsonArray CJsonObjectReader::readList(const QString &name, int minimumSize, int maximumSize) const
{
    const QJsonArray list = getValue(name, QJsonValue::Array).toArray();
    if (list.size() < minimumSize)
        fail(name, QStringLiteral("is an empty list"));
    if (list.size() > maximumSize)
        fail(name,
             QStringLiteral("has %1 items; %2 are allowed").arg(list.size()).arg(maximumSize));
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
                 QStringLiteral("is %1 where a text is wanted")
                     .arg(describeType(list.at(index).type())));
        const QString text = checkText(itemName, list.at(index).toString(), rule);
        if (texts.contains(text))
            fail(itemName, QStringLiteral("repeats %1").arg(Json::quote(text)));
        texts.append(text);
    }
    return texts;
}

void CJsonObjectReader::fail(const QString &name, const QString &cause) const
{
    throw CFieldFault{QStringLiteral("the field %1 %2").arg(Json::quote(getPath(name)), cause)};
}

QString CJsonObjectReader::getPath(const QString &name) const
{
    return m_path.isEmpty() ? name : m_path + QLatin1Char('.') + name;
}

QJsonValue CJsonObjectReader::getValue(const QString &name, QJsonValue::Type type) const
{
    if (!has(name))
        fail(name, QStringLiteral("is missing"));
    const QJsonValue value = m_object.value(name);
    if (value.type() != type)
        fail(name,
             QStringLiteral("is %1 where %2 is wanted")
                 .arg(describeType(value.type()), describeType(type)));
    return value;
}

QString CJsonObjectReader::checkText(const QString &name, const QString &text,
                                     const CTextRule &rule) const
{
    if (text.isEmpty() && !rule.mayBeEmpty)
        fail(name, QStringLiteral("is empty"));
    if (text.size() > rule.maximumLength)
        fail(name, QStringLiteral("is longer than %1 characters").arg(rule.maximumLength));
    if (Json::hasUnprintable(text, rule.hasSeveralLines))
        fail(name,
             rule.hasSeveralLines ? QStringLiteral("has a control character")
                                  : QStringLiteral("has a line break or a control character"));
    if (!rule.hasSeveralLines && text != text.trimmed())
        fail(name, QStringLiteral("begins or ends with white space"));
    return text;
}

} // namespace Viewer::CameraPool::UpdateFile
